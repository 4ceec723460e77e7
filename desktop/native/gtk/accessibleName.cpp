// SPDX-License-Identifier: MIT
#include "desktop/native/accessibleName.h"

#include <gtk/gtk.h>
#include <wx/window.h>

namespace vell {

namespace {

void nameWidget(GtkWidget* widget, const wxString& name) {
    if (widget) atk_object_set_name(gtk_widget_get_accessible(widget), name.utf8_str());
}

}  // namespace

// The toolkit has no accessibility of its own on GTK, which knows every widget already: only the name is missing. A
// list lies inside a widget that scrolls it.
void setAccessibleName(wxWindow& window, const wxString& name) {
    window.SetName(name);
    nameWidget(window.GetHandle(), name);
    nameWidget(window.GetConnectWidget(), name);
    if (GTK_IS_SCROLLED_WINDOW(window.GetHandle())) nameWidget(gtk_bin_get_child(GTK_BIN(window.GetHandle())), name);
}

}  // namespace vell
