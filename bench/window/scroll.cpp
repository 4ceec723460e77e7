// SPDX-License-Identifier: MIT
#include <algorithm>
#include <chrono>
#include <ctime>
#include <iostream>
#include <vector>

#include <wx/dataview.h>

#include "bench/window/measures.h"

void measures::scroll(const Arguments& /*arguments*/) {
    using Milliseconds = std::chrono::duration<double, std::milli>;
    wxDataViewCtrl& list = clippingsList();
    const auto& model = static_cast<wxDataViewVirtualListModel&>(*list.GetModel());
    std::vector<double> steps;
    std::vector<double> work;
    const auto goTo = [&](unsigned int place) {
        const auto begun = std::chrono::steady_clock::now();
        const std::clock_t workBegun = std::clock();
        const wxDataViewItem item = model.GetItem(place);
        list.SetCurrentItem(item);
        list.Select(item);
        list.EnsureVisible(item);
        list.Refresh();
        waitUntilPainted();
        steps.push_back(Milliseconds(std::chrono::steady_clock::now() - begun).count());
        work.push_back(1000.0 * static_cast<double>(std::clock() - workBegun) / CLOCKS_PER_SEC);
    };
    const unsigned int last = model.GetCount() - 1;
    for (unsigned int place = 0; place < 200; ++place)
        goTo(place);
    for (unsigned int place = 0; place < last; place += 25)
        goTo(place);
    for (const unsigned int place : {0U, last, last / 2, 0U, last})
        goTo(place);
    std::ranges::sort(steps);
    std::cout << "rows " << model.GetCount() << ", steps " << steps.size() << "\nmedian " << steps[steps.size() / 2]
              << "\nlongest " << steps.back() << "\nmost processor time " << *std::ranges::max_element(work)
              << std::endl;
}
