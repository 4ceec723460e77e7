// SPDX-License-Identifier: MIT
#include "desktop/native/alwaysShowFocus.h"

#include <gtk/gtk.h>
#include <wx/toplevel.h>

namespace vell {

namespace {

void showFocus(GtkWidget* window, gpointer /*data*/) {
    gtk_window_set_focus_visible(GTK_WINDOW(window), TRUE);
}

}  // namespace

// GTK shows it in a window once a key has led on in it; who comes back from a dialog would not know. Dialogs do as
// their window does.
void alwaysShowFocus(wxTopLevelWindow& window) {
    g_signal_connect(window.GetHandle(), "map", G_CALLBACK(showFocus), nullptr);
}

}  // namespace vell
