// SPDX-License-Identifier: MIT
#include "console/Commands.h"

#include <csignal>
#include <optional>

#include "app/exitCodes.h"
#include "app/frmMain.h"
#include "console/ConsoleBoxes.h"
#include "console/ConsoleView.h"
#include "console/ScheduleCommand.h"
#include "console/Screen.h"
#include "console/SetupCommand.h"
#include "console/UpdateCommand.h"
#include "platform/EventLoop.h"

namespace vell {

namespace {

// Nobody prints or deletes while a download is under way, and none begins meanwhile: it marks what it prints in the
// same file, of which each side would write back its own copy, and the day that is to go may be the one it fetches.
// What marks as opened writes a file that no download writes, and so works beside one.
frmMain::Start startOf(CommandLine::Command command) {
    switch (command) {
        case CommandLine::Command::Download:
        case CommandLine::Command::Watch:
            return frmMain::Start::Alone;
        case CommandLine::Command::Print:
        case CommandLine::Command::Delete:
            return frmMain::Start::AloneOffline;
        default:
            return frmMain::Start::Beside;
    }
}

}  // namespace

Commands::Commands(frmMain& program, EventLoop& loop, ConsoleView& view, Terminal& terminal, Screen& screen,
                   ConsoleBoxes& boxes)
    : program_(program),
      loop_(loop),
      view_(view),
      terminal_(terminal),
      screen_(screen),
      boxes_(boxes),
      clippings_(program, loop, view, terminal, screen) {
    view_.onOpenSetup([this] { SetupCommand(program_.setupDialog(), terminal_, screen_, boxes_).askForLogin(); });
}

int Commands::run(const CommandLine& line) {
    if (!program_.Form_Load(startOf(line.What))) return exit_code::AlreadyRunning;
    const std::string_view complaint = program_.settingsComplaint();
    if (line.What != CommandLine::Command::Setup && !complaint.empty()) screen_.tell(complaint);
    const bool canWork = line.What == CommandLine::Command::Setup || program_.hasSettings();
    const int code = canWork ? perform(line) : exit_code::Failed;
    program_.Form_Unload();
    return code;
}

int Commands::perform(const CommandLine& line) {
    using Command = CommandLine::Command;
    switch (line.What) {
        case Command::Download:
            return download(line);
        case Command::List:
            return clippings_.list(line);
        case Command::Open:
            return clippings_.open(line);
        case Command::Show:
            return clippings_.show(line);
        case Command::Mark:
            return clippings_.mark(line);
        case Command::Print:
            return clippings_.print(line);
        case Command::Delete:
            return clippings_.deleteDay(line);
        case Command::Days:
            return days();
        case Command::Setup:
            return SetupCommand(program_.setupDialog(), terminal_, screen_, boxes_).run(line);
        case Command::Schedule:
        case Command::ScheduleAdd:
        case Command::ScheduleRemove:
            return ScheduleCommand(program_.scheduleDialog(), screen_).run(line);
        case Command::Watch:
            return watch();
        case Command::Update:
            return update(line);
    }
    return exit_code::Usage;
}

int Commands::download(const CommandLine& line) {
    if (line.Day) program_.downloads().chooseRange(*line.Day, *line.Day);
    if (line.From && line.To) program_.downloads().chooseRange(*line.From, *line.To);
    program_.downloads().mnuForceDownload_Click();
    screen_.leaveStatus();
    if (signal_ != 0) return signal_ == SIGINT ? exit_code::Interrupted : exit_code::Terminated;
    if (program_.downloads().outcome().NoConnection) return exit_code::NoConnection;
    return program_.downloads().outcome().isGood() ? exit_code::Good : exit_code::Failed;
}

int Commands::update(const CommandLine& line) {
    const int code = UpdateCommand(program_, screen_).run(line);
    if (signal_ == 0) return code;
    return signal_ == SIGINT ? exit_code::Interrupted : exit_code::Terminated;
}

int Commands::days() {
    for (const Date& day : program_.reading().Browser.days())
        screen_.print(day.dayName());
    return exit_code::Good;
}

int Commands::watch() {
    if (!program_.schedule().nextDue()) {
        screen_.tell(
            "There is no schedule to keep. Add an entry, for example: vell-console schedule add Mon Wed 07:30");
        return exit_code::Usage;
    }
    constexpr int longestNap = 60000;  // milliseconds; the schedule's timer and signals end it
    watches_ = true;
    program_.schedule().start();
    std::optional<LocalTime> announced;
    while (signal_ == 0) {
        if (const auto next = program_.schedule().nextDue(); next != announced) {
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
    if (first && signal == SIGINT && !watches_ && program_.downloads().isBusy())
        program_.downloads().cmdStopDownload_Click();
    else
        program_.endSession();
}

}  // namespace vell
