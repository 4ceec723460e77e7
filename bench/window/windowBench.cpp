// SPDX-License-Identifier: MIT
// What the window costs:
//   vell_bench_window start FOLDER          from START_NS to the first painted frame of the program's window
//   vell_bench_window MEASURE FOLDER ...    see the table and measures.h
#include <cstdlib>
#include <exception>
#include <iostream>
#include <map>
#include <string>

#include <wx/init.h>

#include "app/BuildFacts.h"
#include "bench/window/firstFrame.h"
#include "bench/window/measures.h"
#include "desktop/Program.h"
#include "platform/Installation.h"
#include "platform/SystemPlatform.h"

namespace {

using Measure = void (*)(const measures::Arguments&);

const std::map<std::string, Measure> table{
    {"download", measures::downloadDay},
    {"find", measures::find},
    {"open", measures::openDay},
    {"scroll", measures::scroll},
};

measures::Arguments arguments;  // of the program

void measure() {
    try {
        table.at(arguments.at(0))({arguments.begin() + 2, arguments.end()});
        std::quick_exit(0);
    } catch (const std::exception& error) {
        std::cerr << "vell_bench_window: " << error.what() << '\n';
        std::quick_exit(1);
    }
}

class MeasuredProgram : public vell::Program {
  public:
    MeasuredProgram(std::string folder, vell::Installation& own, void (*painted)())
        : Program(std::move(folder), own), painted_(painted) {}
    bool OnInit() override {
        const bool started = Program::OnInit();
        onPainted(*GetTopWindow(), painted_);
        return started;
    }

  private:
    void (*painted_)();
};

}  // namespace

int main(int argc, char** argv) {
    arguments = {argv + 1, argv + argc};
    if (arguments.size() < 2) return 2;
    const auto afterwards = [] { wxTheApp->CallAfter(&measure); };
    const auto own = vell::settledInstallation({argv, argv + argc}, vell::buildFacts().Version);
    wxApp::SetInstance(new MeasuredProgram(arguments[1], *own, arguments[0] == "start" ? tellFirstFrame : afterwards));
    int nameOnly = 1;
    return wxEntry(nameOnly, argv);
}
