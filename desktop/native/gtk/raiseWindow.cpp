// SPDX-License-Identifier: MIT
#include "desktop/native/raiseWindow.h"

#include <gdk/gdkx.h>
#include <gtk/gtk.h>
#include <wx/toplevel.h>

namespace vell {

// A window manager takes the time of the request for that of the user's last doing, and lets an older one wait.
void raiseWindow(wxTopLevelWindow& window, const std::string& token) {
    GtkWidget* const widget = window.GetHandle();
    GdkWindow* const native = gtk_widget_get_window(widget);
    if (!token.empty()) gtk_window_set_startup_id(GTK_WINDOW(widget), token.c_str());
    const bool isX11 = native != nullptr && GDK_IS_X11_WINDOW(native);
    gtk_window_present_with_time(GTK_WINDOW(widget), isX11 ? gdk_x11_get_server_time(native) : GDK_CURRENT_TIME);
}

}  // namespace vell
