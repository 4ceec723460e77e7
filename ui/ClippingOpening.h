// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "log/EventLog.h"
#include "ui/StatusText.h"

namespace vell {

class Articles;
class ClippingsBrowser;
class MessageBoxes;
class Translations;
class modGlobal;

// The commands that show clippings with the programs that the system has for them, and mark them as opened.
class ClippingOpening {
  public:
    struct Parts {
        ClippingsBrowser& Browser;
        modGlobal& Store;
        Articles& Article;
        MessageBoxes& Boxes;
        EventLog& Log;
        const Translations& Words;
    };
    // `message` says what somebody has to know beyond the status line.
    ClippingOpening(const Parts& parts, StatusText status, StatusText message);

    // Opens what has not been opened yet: a second double click too many starts no second viewer.
    void grdLocalFiles_DblClick(std::size_t row);
    // All of them, opened before or not, after a question when they are many. Stops at one that cannot be opened.
    void openRows(std::span<const std::size_t> rows);
    // Says of these rows that their clippings have been opened, or that they have not. False, and told, when a mark
    // was not written.
    bool markRows(std::span<const std::size_t> rows, bool opened);
    // The first 20 of the list that have not been opened. Stops at one that cannot be.
    void openNext20();
    void openDayFolder();
    void openHelp();
    // A page of the web.
    void openAddress(const std::string& address);

    enum class Outcome : std::uint8_t {
        Failed,    // the system did not take it
        Unmarked,  // it is open, but nothing remembers it
        Done,
    };
    Outcome open(const std::string& path);

  private:
    void openAll(const std::vector<std::string>& paths);

    Parts p_;
    StatusText status_;
    StatusText message_;
};

}  // namespace vell
