// SPDX-License-Identifier: MIT
#include <algorithm>
#include <chrono>
#include <ctime>
#include <iostream>
#include <stdexcept>
#include <vector>

#include <wx/dataview.h>

#include "bench/window/measures.h"
#include "desktop/commandIds.h"

void measures::openDay(const Arguments& arguments) {
    const auto& model = static_cast<wxDataViewVirtualListModel&>(*clippingsList().GetModel());
    std::vector<double> times;
    std::vector<double> work;
    for (int left = std::stoi(arguments.at(0)); left > 0; --left) {
        choose(vell::command::NewerDay);
        waitUntilPainted();
        if (model.GetCount() != 1) throw std::runtime_error("the newer day did not open");
        const auto begun = std::chrono::steady_clock::now();
        const std::clock_t workBegun = std::clock();
        choose(vell::command::OlderDay);
        waitUntilPainted();
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begun).count());
        work.push_back(1000.0 * static_cast<double>(std::clock() - workBegun) / CLOCKS_PER_SEC);
        if (model.GetCount() < 2) throw std::runtime_error("the older day did not open");
    }
    std::ranges::sort(times);
    std::ranges::sort(work);
    std::cout << "rows " << model.GetCount() << ", opened " << times.size() << " times\nmedian "
              << times[times.size() / 2] << "\nlongest " << times.back() << "\nprocessor time " << work[work.size() / 2]
              << std::endl;
}
