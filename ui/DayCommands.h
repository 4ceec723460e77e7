// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "base/Date.h"
#include "log/EventLog.h"

namespace vell {

class ClippingsBrowser;
class MessageBoxes;
class modGlobal;

// The commands for whole days of the date list.
class DayCommands {
  public:
    DayCommands(ClippingsBrowser& browser, modGlobal& store, MessageBoxes& boxes, EventLog& log);

    // Shows this day when it is there, else the newest.
    void chooseFirst(const std::optional<Date>& day);
    // Reads days and clippings anew; the folder of all may have become another.
    void reload();
    void chooseNewer();
    void chooseOlder();
    // After a question. The newest of the days that are left is shown then.
    void mnuDeleteDay_Click();

  private:
    void step(int places);

    ClippingsBrowser& browser_;
    modGlobal& store_;
    MessageBoxes& boxes_;
    EventLog& log_;
};

}  // namespace vell
