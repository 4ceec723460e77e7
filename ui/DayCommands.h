// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "base/Date.h"
#include "log/EventLog.h"

namespace vell {

class ClippingsBrowser;
class DayCounts;
class MessageBoxes;
class Translations;
class modGlobal;

// The commands for whole days of the date list.
class DayCommands {
  public:
    struct Parts {
        ClippingsBrowser& Browser;
        modGlobal& Store;
        DayCounts& Counts;
        MessageBoxes& Boxes;
        EventLog& Log;
        const Translations& Words;
    };
    // `isBusy`: something is under way that works on the days, a download or a batch of prints.
    DayCommands(const Parts& parts, std::function<bool()> isBusy);

    // Shows this day when it is there, else the newest.
    void chooseFirst(const std::optional<Date>& day);
    // Reads days and clippings anew; the folder of all may have become another.
    void reload();
    void chooseNewer();
    void chooseOlder();
    // After a question; not while something works on the days. When the day that is shown goes, the newest of those
    // that are left is shown.
    void mnuDeleteDay_Click(const std::vector<Date>& days);
    [[nodiscard]] bool canDelete() const { return !isBusy_(); }

  private:
    void step(int places);
    [[nodiscard]] bool wantsToDelete(const std::vector<Date>& days, std::size_t clippings) const;
    void tellKept(const std::vector<Date>& days) const;

    Parts p_;
    std::function<bool()> isBusy_;
};

}  // namespace vell
