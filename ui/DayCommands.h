// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
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
    // `isBusy`: something is under way that works on the days, a download or a batch of prints.
    DayCommands(ClippingsBrowser& browser, modGlobal& store, MessageBoxes& boxes, EventLog& log,
                std::function<bool()> isBusy);

    // Shows this day when it is there, else the newest.
    void chooseFirst(const std::optional<Date>& day);
    // Reads days and clippings anew; the folder of all may have become another.
    void reload();
    void chooseNewer();
    void chooseOlder();
    // After a question; not while something works on the days. The newest of the days that are left is shown then.
    void mnuDeleteDay_Click();
    [[nodiscard]] bool canDelete() const;

  private:
    void step(int places);

    ClippingsBrowser& browser_;
    modGlobal& store_;
    MessageBoxes& boxes_;
    EventLog& log_;
    std::function<bool()> isBusy_;
};

}  // namespace vell
