// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdlib>
#include <iostream>

#include <gtk/gtk.h>
#include <wx/window.h>

// Calls `painted` when all of the window's first frame has been drawn.
inline void onPainted(wxWindow& window, void (*painted)()) {
    const auto onDraw = +[](GtkWidget* widget, cairo_t*, gpointer call) -> gboolean {
        g_signal_handlers_disconnect_matched(widget, G_SIGNAL_MATCH_DATA, 0, 0, nullptr, nullptr, call);
        reinterpret_cast<void (*)()>(call)();
        return FALSE;
    };
    g_signal_connect_after(window.GetHandle(), "draw", G_CALLBACK(onDraw), reinterpret_cast<gpointer>(painted));
}

// How long ago START_NS was, in milliseconds; ends the process.
inline void tellFirstFrame() {
    const char* start = std::getenv("START_NS");
    const std::chrono::nanoseconds begun{start ? std::strtoll(start, nullptr, 10) : 0};
    const std::chrono::duration<double, std::milli> since = std::chrono::system_clock::now().time_since_epoch() - begun;
    std::cout << "first frame " << since.count() << std::endl;
    std::quick_exit(0);
}
