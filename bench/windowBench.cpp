// SPDX-License-Identifier: MIT
// What the window costs, told on standard output in milliseconds:
//   vell_bench_window start FOLDER     from START_NS to the first painted frame of the program's window
//   vell_bench_window scroll FOLDER    the longest and the typical time of a step through the list, painting included,
//                                      and the most processor time of one, which other machines on the host do not add
//                                      to
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <string>
#include <vector>

#include <gtk/gtk.h>
#include <wx/dataview.h>
#include <wx/init.h>

#include "bench/firstFrame.h"
#include "desktop/Program.h"

namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

void tell(const std::string& what, Milliseconds time) {
    std::cout << what << " " << time.count() << std::endl;
}

wxDataViewCtrl* listIn(wxWindow& window) {
    if (auto* list = dynamic_cast<wxDataViewCtrl*>(&window)) return list;
    for (wxWindow* child : window.GetChildren())
        if (auto* list = listIn(*child)) return list;
    return nullptr;
}

// Every way through the list: line by line, page by page, and from end to end.
void scroll() {
    wxDataViewCtrl& list = *listIn(*wxTheApp->GetTopWindow());
    const auto& model = static_cast<wxDataViewVirtualListModel&>(*list.GetModel());
    std::vector<Milliseconds> steps;
    std::vector<Milliseconds> work;
    const auto goTo = [&](unsigned int place) {
        const auto begun = std::chrono::steady_clock::now();
        const std::clock_t workBegun = std::clock();
        const wxDataViewItem item = model.GetItem(place);
        list.SetCurrentItem(item);
        list.Select(item);
        list.EnsureVisible(item);
        list.Refresh();
        // Queued drawing counts: it is done here and not with the display's next frame.
        gtk_test_widget_wait_for_draw(wxTheApp->GetTopWindow()->GetHandle());
        steps.emplace_back(std::chrono::steady_clock::now() - begun);
        work.emplace_back(1000.0 * static_cast<double>(std::clock() - workBegun) / CLOCKS_PER_SEC);
    };
    const unsigned int last = model.GetCount() - 1;
    for (unsigned int place = 0; place < 200; ++place)
        goTo(place);
    for (unsigned int place = 0; place < last; place += 25)
        goTo(place);
    for (const unsigned int place : {0U, last, last / 2, 0U, last})
        goTo(place);
    std::ranges::sort(steps);
    std::cout << "rows " << model.GetCount() << ", steps " << steps.size() << std::endl;
    tell("median", steps[steps.size() / 2]);
    tell("longest", steps.back());
    tell("most processor time", *std::ranges::max_element(work));
    std::quick_exit(0);
}

class MeasuredProgram : public vell::Program {
  public:
    MeasuredProgram(std::string folder, void (*painted)()) : Program(std::move(folder)), painted_(painted) {}
    bool OnInit() override {
        const bool started = Program::OnInit();
        onPainted(*GetTopWindow(), painted_);
        return started;
    }

  private:
    void (*painted_)();
};

wxApp* programOf(const std::vector<std::string>& arguments) {
    if (arguments.at(0) == "start") return new MeasuredProgram(arguments.at(1), tellFirstFrame);
    return new MeasuredProgram(arguments.at(1), [] { wxTheApp->CallAfter([] { scroll(); }); });
}

}  // namespace

int main(int argc, char** argv) {
    wxApp::SetInstance(programOf({argv + 1, argv + argc}));
    int nameOnly = 1;
    return wxEntry(nameOnly, argv);
}
