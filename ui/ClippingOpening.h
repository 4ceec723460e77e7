// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "log/EventLog.h"
#include "ui/StatusText.h"

namespace vell {

class Articles;
class ClippingsBrowser;
class modGlobal;

// The commands that show clippings with the programs that the system has for them, and mark them as opened.
class ClippingOpening {
  public:
    // `message` says what somebody has to know beyond the status line.
    ClippingOpening(ClippingsBrowser& browser, modGlobal& store, Articles& articles, EventLog& log, StatusText status,
                    StatusText message);

    // Opens what has not been opened yet: a second double click too many starts no second viewer.
    void grdLocalFiles_DblClick(std::size_t row);
    // The row's clipping, opened before or not.
    void openRow(std::size_t row);
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
    ClippingsBrowser& browser_;
    modGlobal& store_;
    Articles& articles_;
    EventLog& log_;
    StatusText status_;
    StatusText message_;
};

}  // namespace vell
