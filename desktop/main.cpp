// SPDX-License-Identifier: MIT
#include <exception>
#include <iostream>
#include <optional>
#include <string>

#include <CLI/CLI.hpp>
#include <wx/init.h>

#include "app/BuildFacts.h"
#include "app/exitCodes.h"
#include "desktop/Program.h"
#include "platform/Installation.h"
#include "platform/SystemPlatform.h"

namespace {

int runWindow(int argc, char** argv) {
    CLI::App line("The desktop client of a press-clipping service.", "vell");
    std::string folder;
    line.add_option("--folder", folder, "The folder for settings and log; the usual one without it")->type_name("DIR");
    line.set_version_flag("--version", "vell " + vell::buildFacts().Version);
    try {
        line.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return line.exit(error) == 0 ? vell::exit_code::Good : vell::exit_code::Usage;
    }
    const auto own = vell::settledInstallation({argv, argv + argc}, vell::buildFacts().Version);
    wxApp::SetInstance(
        new vell::Program(folder.empty() ? std::nullopt : std::optional(folder), *own));  // the toolkit's now
    int nameOnly = 1;
    const int exitCode = wxEntry(nameOnly, argv);
    return exitCode < 0 ? vell::exit_code::Failed : exitCode;  // the toolkit's way to say that it could not begin
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return runWindow(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "vell: " << error.what() << '\n';
        return vell::exit_code::Failed;
    }
}
