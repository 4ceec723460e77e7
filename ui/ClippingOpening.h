// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
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
    ClippingOpening(ClippingsBrowser& browser, modGlobal& store, Articles& articles, EventLog& log, StatusText status);

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

    // True when the system took it; it is then marked.
    bool open(const std::string& path);

  private:
    ClippingsBrowser& browser_;
    modGlobal& store_;
    Articles& articles_;
    EventLog& log_;
    StatusText status_;
};

}  // namespace vell
