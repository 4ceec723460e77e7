// SPDX-License-Identifier: MIT
#include "desktop/native/showQuietly.h"

#include <algorithm>
#include <memory>
#include <span>
#include <string_view>

#include <gtk/gtk.h>
#include <wx/toplevel.h>

namespace vell {

namespace {

bool isFromGtk(std::span<const GLogField> fields) {
    return std::ranges::any_of(fields, [](const GLogField& field) {
        return std::string_view(field.key) == "GLIB_DOMAIN" && field.length < 0 &&
               std::string_view(static_cast<const char*>(field.value)) == "Gtk";
    });
}

GLogWriterOutput write(GLogLevelFlags level, const GLogField* fields, gsize count, gpointer isShown) {
    if (!*static_cast<bool*>(isShown) && isFromGtk({fields, count})) return G_LOG_WRITER_HANDLED;
    return g_log_writer_default(level, fields, count, nullptr);
}

void forget(gpointer isShown) {
    delete static_cast<bool*>(isShown);
}

gboolean speakAgain(GtkWidget* window, GdkEvent* /*event*/, gpointer isShown) {
    *static_cast<bool*>(isShown) = true;
    g_signal_handlers_disconnect_by_data(window, isShown);
    return FALSE;
}

}  // namespace

// While wxWidgets waits for the window manager to tell how wide its frames are, it has GTK lay the window out at a size
// of 2 x 1, and GTK complains on standard error of every widget that does not fit into that.
void showQuietly(wxTopLevelWindow& window) {
    auto isShown = std::make_unique<bool>(false);
    g_signal_connect(window.GetHandle(), "map-event", G_CALLBACK(speakAgain), isShown.get());
    g_log_set_writer_func(write, isShown.release(), forget);  // owned by GLib, which can be told a writer only once
    window.Show();
}

}  // namespace vell
