// SPDX-License-Identifier: MIT
#include "desktop/native/dialogRole.h"

#include <gtk/gtk.h>
#include <wx/dialog.h>

namespace vell {

// wxWidgets makes its dialogs of GTK's plain windows.
void giveDialogRole(wxDialog& dialog) {
    atk_object_set_role(gtk_widget_get_accessible(dialog.GetHandle()), ATK_ROLE_DIALOG);
}

}  // namespace vell
