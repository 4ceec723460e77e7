// SPDX-License-Identifier: MIT
#include "desktop/native/insistOnPlace.h"

#include <gtk/gtk.h>
#include <wx/toplevel.h>

namespace vell {

namespace {

gboolean move(GtkWidget* widget, GdkEvent* /*event*/, gpointer corner) {
    const auto* wanted = static_cast<const wxPoint*>(corner);
    gtk_window_move(GTK_WINDOW(widget), wanted->x, wanted->y);
    g_signal_handlers_disconnect_matched(widget, G_SIGNAL_MATCH_DATA, 0, 0, nullptr, nullptr, corner);
    return FALSE;
}

void forget(gpointer corner, GClosure* /*closure*/) {
    delete static_cast<wxPoint*>(corner);
}

}  // namespace

// Some window managers ignore the place that a window asks for before they have put it somewhere, but none afterwards.
void insistOnPlace(wxTopLevelWindow& window, const wxPoint& corner) {
    g_signal_connect_data(window.GetHandle(), "map-event", G_CALLBACK(move), new wxPoint(corner), forget,
                          GConnectFlags(0));
}

}  // namespace vell
