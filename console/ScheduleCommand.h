// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "base/Date.h"
#include "config/frmSchedule.h"

namespace vell {

class Screen;
struct CommandLine;

// The schedule dialog on a terminal: shows the weekly schedule, adds an entry or removes one.
class ScheduleCommand {
  public:
    ScheduleCommand(frmSchedule dialog, Screen& screen);

    // The exit code.
    [[nodiscard]] int run(const CommandLine& line);

  private:
    void show();
    [[nodiscard]] int add(std::string_view entry);
    [[nodiscard]] int remove(int number);
    [[nodiscard]] int save();

    frmSchedule dialog_;
    Screen& screen_;
};

// "Monday 23/11/2026 at 06:30".
[[nodiscard]] std::string momentText(const LocalTime& moment);

}  // namespace vell
