// SPDX-License-Identifier: MIT
#include "console/ScheduleCommand.h"

#include <array>
#include <utility>

#include "app/exitCodes.h"
#include "base/text.h"
#include "config/Schedule.h"
#include "console/CommandLine.h"
#include "console/Screen.h"

namespace vell {

namespace {

constexpr std::array<std::string_view, 7> longDayNames{"Monday", "Tuesday",  "Wednesday", "Thursday",
                                                       "Friday", "Saturday", "Sunday"};

}  // namespace

std::string momentText(const LocalTime& moment) {
    return std::string(longDayNames[static_cast<std::size_t>(moment.Day.weekday()) - 1]) + " " + moment.Day.dayName() +
           " at " + moment.hourMinute();
}

ScheduleCommand::ScheduleCommand(frmSchedule dialog, Screen& screen) : dialog_(std::move(dialog)), screen_(screen) {}

int ScheduleCommand::run(const CommandLine& line) {
    if (!dialog_.Form_Load()) return exit_code::Failed;
    if (line.What == CommandLine::Command::ScheduleAdd) return add(codePageFromUtf8Lossy(line.Entry));
    if (line.What == CommandLine::Command::ScheduleRemove) return remove(line.Number);
    show();
    return exit_code::Good;
}

void ScheduleCommand::show() {
    if (dialog_.rows().empty())
        screen_.tell("There is no schedule. Add an entry, for example: vell-console schedule add Mon Wed 07:30");
    int number = 0;
    for (const ScheduleEntry& entry : dialog_.rows()) {
        std::string text = std::to_string(++number) + "  " + entry.Time + " ";
        for (std::size_t day = 0; day < scheduleDays.size(); ++day)
            text += " " + (entry.Days[day] ? std::string(scheduleDays[day]) : " - ");
        screen_.print(shownText(text));
    }
}

int ScheduleCommand::add(std::string_view typed) {
    if (const std::string mistake = mistakeInTyped(typed); !mistake.empty()) {
        screen_.tell(mistake);
        return exit_code::Usage;
    }
    dialog_.add(scheduleEntryTyped(typed));
    return save();
}

int ScheduleCommand::remove(int number) {
    if (number < 1 || static_cast<std::size_t>(number) > dialog_.rows().size()) {
        screen_.tell("There is no entry " + std::to_string(number) + ". 'vell-console schedule' shows them.");
        return exit_code::Usage;
    }
    dialog_.cmdDelSchedule_Click(static_cast<std::size_t>(number) - 1);
    return save();
}

int ScheduleCommand::save() {
    if (!dialog_.cmdOk_Click()) return exit_code::Failed;
    show();
    screen_.tell("A 'watch' that is running keeps its schedule until it is started again.");
    return exit_code::Good;
}

}  // namespace vell
