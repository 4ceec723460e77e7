// SPDX-License-Identifier: MIT
#include <chrono>
#include <iostream>
#include <stdexcept>

#include <gtk/gtk.h>
#include <sys/resource.h>
#include <wx/app.h>

#include "bench/window/measures.h"
#include "desktop/MainWindow.h"
#include "desktop/commandIds.h"
#include "desktop/sidebar/DayPicker.h"

namespace {

double processorSeconds() {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(used.ru_utime) + seconds(used.ru_stime);
}

long peakMemory() {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    return used.ru_maxrss;
}

// Into "From" and "To"; a typed day counts from the start of the download.
void typeDays(wxWindow& window, const std::string& day) {
    for (wxWindow* child : window.GetChildren())
        if (auto* picker = dynamic_cast<vell::DayPicker*>(child))
            picker->SetText(day);
        else
            typeDays(*child, day);
}

gboolean countFrame(GtkWidget* /*widget*/, cairo_t* /*drawing*/, gpointer count) {
    ++*static_cast<int*>(count);
    return FALSE;
}

}  // namespace

void measures::downloadDay(const Arguments& arguments) {
    typeDays(mainWindow(), arguments.at(0));
    waitUntilPainted();
    int frames = 0;
    g_signal_connect(mainWindow().GetHandle(), "draw", G_CALLBACK(countFrame), &frames);
    const double workBefore = processorSeconds();
    const auto begun = std::chrono::steady_clock::now();
    choose(vell::command::Start);
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begun;
    const double work = processorSeconds() - workBefore;
    if (mainWindow().offersStop()) throw std::runtime_error("the download is still going on");
    std::cout << time.count() << ' ' << work << ' ' << peakMemory() << std::endl;
    std::cerr << "window: " << frames << " frames painted meanwhile\n";
}
