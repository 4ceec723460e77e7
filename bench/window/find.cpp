// SPDX-License-Identifier: MIT
#include <algorithm>
#include <chrono>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>

#include <wx/app.h>
#include <wx/dataview.h>
#include <wx/evtloop.h>
#include <wx/srchctrl.h>
#include <wx/utils.h>

#include "bench/window/measures.h"
#include "desktop/MainWindow.h"
#include "desktop/bars/FindBar.h"

namespace {

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point begun) {
    return std::chrono::duration<double, std::milli>(Clock::now() - begun).count();
}

wxSearchCtrl& box() {
    for (wxWindow* child : measures::mainWindow().find().GetChildren())
        if (auto* found = dynamic_cast<wxSearchCtrl*>(child)) return *found;
    throw std::runtime_error("there is no box to type in");
}

struct Answer {
    double Time = 0;         // until the list is painted with what was found
    double LongestStep = 0;  // of the event loop
};

Answer type(const std::string& text, unsigned int expected) {
    const auto& model = static_cast<wxDataViewVirtualListModel&>(*measures::clippingsList().GetModel());
    Answer answer;
    const auto begun = Clock::now();
    std::optional<Clock::time_point> found;
    box().SetValue(wxString::FromUTF8(text));
    answer.LongestStep = millisecondsSince(begun);
    // The search goes on for a moment with what it has found already: the last step counts, too.
    while (!found || Clock::now() - *found < std::chrono::milliseconds(50)) {
        if (millisecondsSince(begun) > 60'000) throw std::runtime_error("'" + text + "' is not found");
        const auto step = Clock::now();
        if (!wxTheApp->GetMainLoop()->Pending()) {
            wxMicroSleep(300);
            continue;
        }
        wxTheApp->GetMainLoop()->Dispatch();
        answer.LongestStep = std::max(answer.LongestStep, millisecondsSince(step));
        if (!found && model.GetCount() == expected) {
            measures::waitUntilPainted();
            answer.Time = millisecondsSince(begun);
            found = Clock::now();
        }
    }
    return answer;
}

}  // namespace

void measures::find(const Arguments& arguments) {
    Answer letters;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::size_t sign = arguments[i].rfind('=');
        const Answer answer =
            type(arguments[i].substr(0, sign), static_cast<unsigned int>(std::stoul(arguments[i].substr(sign + 1))));
        std::cout << arguments[i] << " answered " << answer.Time << "\n"
                  << arguments[i] << " longest step " << answer.LongestStep << std::endl;
        if (i == 0) continue;  // that one has read the texts
        letters = {std::max(letters.Time, answer.Time), std::max(letters.LongestStep, answer.LongestStep)};
    }
    std::cout << "letter answered " << letters.Time << "\nletter longest step " << letters.LongestStep << std::endl;
}
