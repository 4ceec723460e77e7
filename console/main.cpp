// SPDX-License-Identifier: MIT
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "app/frmMain.h"
#include "base/text.h"
#include "console/CommandLine.h"
#include "console/Commands.h"
#include "console/ConsoleBoxes.h"
#include "console/ConsoleView.h"
#include "console/Screen.h"
#include "platform/asio/AsioEventLoop.h"
#include "platform/asio/AsioSockets.h"
#include "platform/asio/StopSignals.h"
#include "platform/posix/files/PosixFiles.h"
#include "platform/posix/files/PosixIniFile.h"
#include "platform/posix/internet/CurlInternet.h"
#include "platform/posix/network/NetworkInterfaces.h"
#include "platform/posix/network/NetworkManagerClient.h"
#include "platform/posix/network/PosixConnection.h"
#include "platform/posix/network/PosixRas.h"
#include "platform/posix/printing/CupsPrinters.h"
#include "platform/posix/program/PosixProcess.h"
#include "platform/posix/program/PosixShell.h"
#include "platform/posix/program/PosixTerminal.h"
#include "platform/posix/program/SystemClock.h"

namespace {

int runProgram(const vell::CommandLine& line, vell::PosixTerminal& terminal) {
    vell::SystemClock clock;
    vell::AsioEventLoop loop(clock);
    vell::PosixFiles files;
    vell::PosixIniFile ini(files);
    vell::CurlInternet internet(loop, clock);
    vell::AsioSockets sockets(loop);
    const auto wanted = line.Folder.empty() ? std::nullopt : std::optional(line.Folder);
    vell::PosixProcess process(vell::ProgramPlace::ofThisProcess(wanted));
    vell::PosixShell shell;
    vell::CupsPrinters printers;
    vell::NetworkManagerClient manager(loop, clock, "");
    vell::PosixConnection connection(manager, vell::configuredProxy());
    vell::PosixRas ras(manager);
    vell::Screen screen(terminal);
    vell::ConsoleBoxes boxes(terminal, screen, loop);
    if (line.Yes) boxes.sayYesToAll();
    vell::ConsoleView view(screen, boxes);
    vell::frmMain program(
        {clock, loop, files, ini, internet, sockets, connection, ras, boxes, process, shell, printers}, view,
        VELL_VERSION);
    vell::Commands commands(program, loop, view, terminal, screen, boxes);
    // A run is ended in good order. Printing and deleting have nothing to wind up, and the pauses between printed
    // documents let no event through: there a signal ends the program as it ends any other.
    using Command = vell::CommandLine::Command;
    std::optional<vell::StopSignals> signals;
    if (line.What != Command::Print && line.What != Command::Delete)
        signals.emplace(loop, [&](int number) { commands.interrupt(number); });
    return commands.run(line);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        vell::PosixTerminal terminal;
        int exitCode = vell::exit_code::Good;
        const auto line = vell::parseCommandLine({argv + 1, argv + argc}, terminal, exitCode);
        return line ? runProgram(*line, terminal) : exitCode;
    } catch (const std::exception& error) {
        std::cerr << "vell-console: " << error.what() << "\n";
        return vell::exit_code::Failed;
    }
}
