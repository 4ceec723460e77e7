// SPDX-License-Identifier: MIT
#include "console/Commands.h"

#include <csignal>
#include <optional>

#include "app/frmMain.h"
#include "console/ClippingsTable.h"
#include "console/ConsoleBoxes.h"
#include "console/ConsoleView.h"
#include "console/ScheduleCommand.h"
#include "console/Screen.h"
#include "console/SetupCommand.h"
#include "platform/EventLoop.h"
#include "platform/Terminal.h"

namespace vell {

namespace {
// For readers of a file or a mail; programs take the tab-separated form, in which nothing is cut.
constexpr std::size_t widthWithoutTerminal = 120;
}  // namespace

Commands::Commands(frmMain& program, EventLoop& loop, ConsoleView& view, Terminal& terminal, Screen& screen,
                   ConsoleBoxes& boxes)
    : program_(program), loop_(loop), view_(view), terminal_(terminal), screen_(screen), boxes_(boxes) {
    view_.onOpenSetup([this] { SetupCommand(program_.setupDialog(), terminal_, screen_, boxes_).askForLogin(); });
}

int Commands::run(const CommandLine& line) {
    using Command = CommandLine::Command;
    const bool alone = line.What == Command::Download || line.What == Command::Watch;
    if (!program_.Form_Load(alone ? frmMain::Start::Alone : frmMain::Start::Beside)) return exit_code::AlreadyRunning;
    if (line.What != Command::Setup && !program_.areSettingsWhole()) screen_.tell(damagedSettings);
    int code = exit_code::Good;
    switch (line.What) {
        case Command::Download:
            code = download(line);
            break;
        case Command::List:
            code = list(line);
            break;
        case Command::Days:
            code = days();
            break;
        case Command::Setup:
            code = SetupCommand(program_.setupDialog(), terminal_, screen_, boxes_).run(line);
            break;
        case Command::Schedule:
        case Command::ScheduleAdd:
        case Command::ScheduleRemove:
            code = ScheduleCommand(program_.scheduleDialog(), screen_).run(line);
            break;
        case Command::Watch:
            code = watch();
            break;
    }
    program_.Form_Unload();
    return code;
}

int Commands::download(const CommandLine& line) {
    if (line.Day) program_.chooseRange(*line.Day, *line.Day);
    if (line.From && line.To) program_.chooseRange(*line.From, *line.To);
    program_.mnuForceDownload_Click();
    screen_.leaveStatus();
    if (signal_ != 0) return signal_ == SIGINT ? exit_code::Interrupted : exit_code::Terminated;
    if (program_.outcome().NoConnection) return exit_code::NoConnection;
    return program_.outcome().isGood() ? exit_code::Good : exit_code::Failed;
}

int Commands::list(const CommandLine& line) {
    ClippingsBrowser& browser = program_.browser();
    if (browser.days().empty() && !line.Day) {
        screen_.tell("No day has been fetched yet. 'vell-console download' fetches today's clippings.");
        return exit_code::Good;
    }
    const std::string day = line.Day ? line.Day->dayName() : browser.days().front();
    if (!browser.chooseDay(day)) {
        screen_.tell("The day " + day + " has not been fetched. 'vell-console days' shows those that have.");
        return exit_code::Failed;
    }
    if (line.Tsv) {
        for (const ClippingRow& row : browser.rows())
            screen_.print(clippingTsv(row));
        return exit_code::Good;
    }
    screen_.print(day + "   " + std::to_string(browser.rows().size()) + " Clippings");
    if (const std::string alert = shownLines(view_.alert()); !alert.empty()) screen_.print(alert);
    const bool fits = terminal_.isTerminal(Terminal::Stream::Output);
    for (const std::string& text :
         clippingsTable(browser.rows(), fits ? static_cast<std::size_t>(terminal_.width()) : widthWithoutTerminal))
        screen_.print(text);
    return exit_code::Good;
}

int Commands::days() {
    for (const std::string& day : program_.browser().days())
        screen_.print(day);
    return exit_code::Good;
}

int Commands::watch() {
    if (!program_.nextDue()) {
        screen_.tell(
            "There is no schedule to keep. Add an entry, for example: vell-console schedule add Mon Wed 07:30");
        return exit_code::Usage;
    }
    constexpr int longestNap = 60000;  // milliseconds; the schedule's timer and signals end it
    watches_ = true;
    program_.startSchedule();
    std::optional<LocalTime> announced;
    while (signal_ == 0) {
        if (const auto next = program_.nextDue(); next != announced) {
            if (next) screen_.print("Next download: " + momentText(*next));
            announced = next;
        }
        loop_.WaitForEvents(longestNap);
    }
    screen_.print("Stopped watching.");
    return exit_code::Good;
}

void Commands::interrupt(int signal) {
    boxes_.giveUpQuestion();
    const bool first = signal_ == 0;
    signal_ = signal;
    if (first && signal == SIGINT && !watches_ && program_.isBusy())
        program_.cmdStopDownload_Click();
    else
        program_.endSession();
}

}  // namespace vell
