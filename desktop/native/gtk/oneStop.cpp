// SPDX-License-Identifier: MIT
#include "desktop/native/oneStop.h"

#include <gtk/gtk.h>
#include <wx/combobox.h>

namespace vell {

namespace {

void skipButtons(GtkWidget* widget, gpointer /*data*/) {
    if (GTK_IS_TOGGLE_BUTTON(widget))
        gtk_widget_set_can_focus(widget, FALSE);
    else if (GTK_IS_CONTAINER(widget))
        gtk_container_forall(GTK_CONTAINER(widget), skipButtons, nullptr);
}

}  // namespace

void makeOneStop(wxComboBox& box) {
    skipButtons(box.GetHandle(), nullptr);
}

}  // namespace vell
