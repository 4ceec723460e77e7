// SPDX-License-Identifier: MIT
#include "desktop/native/notificationRole.h"

#include <gtk/gtk.h>
#include <wx/window.h>

namespace vell {

void setNotificationRole(wxWindow& window) {
    atk_object_set_role(gtk_widget_get_accessible(window.GetHandle()), ATK_ROLE_NOTIFICATION);
}

}  // namespace vell
