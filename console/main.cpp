// SPDX-License-Identifier: MIT
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "app/BuildFacts.h"
#include "app/exitCodes.h"
#include "app/frmMain.h"
#include "base/text.h"
#include "console/CommandLine.h"
#include "console/Commands.h"
#include "console/ConsoleBoxes.h"
#include "console/ConsoleView.h"
#include "console/Screen.h"
#include "platform/Arguments.h"
#include "platform/Installation.h"
#include "platform/SystemPlatform.h"
#include "platform/Terminal.h"
#include "platform/asio/AsioEventLoop.h"
#include "platform/asio/StopSignals.h"

namespace {

int runProgram(const vell::CommandLine& line, vell::Terminal& terminal, vell::Installation& own) {
    vell::SystemPlatform system(line.Folder.empty() ? std::nullopt : std::optional(line.Folder), own);
    vell::AsioEventLoop& loop = system.loop();
    vell::Screen screen(terminal);
    vell::ConsoleBoxes boxes(terminal, screen, loop);
    if (line.Yes) boxes.sayYesToAll();
    vell::ConsoleView view(screen, boxes);
    vell::frmMain program(system.with(boxes), view, vell::buildFacts());
    vell::Commands commands(program, loop, view, terminal, screen, boxes);
    // A run is ended in good order. Printing and deleting have nothing to wind up, and the pauses between printed
    // documents let no event through: there a signal ends the program as it ends any other.
    using Command = vell::CommandLine::Command;
    std::optional<vell::StopSignals> signals;
    if (line.What != Command::Print && line.What != Command::Delete)
        signals.emplace(loop, [&](int number) { commands.interrupt(number); });
    const int code = commands.run(line);
    if (program.isUpdatePending()) own.Restart();
    return code;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const auto terminal = vell::systemTerminal();
        int exitCode = vell::exit_code::Good;
        const auto line = vell::parseCommandLine(vell::programArguments(argc, argv), *terminal, exitCode);
        if (!line) return exitCode;
        const auto own = vell::settledInstallation({argv, argv + argc}, vell::buildFacts().Version);
        return runProgram(*line, *terminal, *own);
    } catch (const std::exception& error) {
        std::cerr << "vell-console: " << error.what() << "\n";
        return vell::exit_code::Failed;
    }
}
