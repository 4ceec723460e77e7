// SPDX-License-Identifier: MIT
#include "desktop/native/holdParent.h"

#include <gtk/gtk.h>
#include <wx/dialog.h>

namespace vell {

// A parent that is disabled would be drawn in grey.
void holdParent(wxDialog& dialog, bool hold) {
    gtk_window_set_modal(GTK_WINDOW(dialog.GetHandle()), hold);
}

}  // namespace vell
