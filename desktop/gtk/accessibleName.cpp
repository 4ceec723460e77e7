// SPDX-License-Identifier: MIT
#include "desktop/accessibleName.h"

#include <gtk/gtk.h>
#include <wx/window.h>

namespace vell {

// The toolkit has no accessibility of its own on GTK, which knows every widget already: only the name is missing.
void setAccessibleName(wxWindow& window, const wxString& name) {
    window.SetName(name);
    for (GtkWidget* widget : {window.GetHandle(), window.GetConnectWidget()})
        if (widget) atk_object_set_name(gtk_widget_get_accessible(widget), name.utf8_str());
}

}  // namespace vell
