// SPDX-License-Identifier: MIT
#include "desktop/native/accessibleName.h"

#include <gtk/gtk.h>
#include <wx/window.h>

namespace vell {

namespace {

void nameWidget(GtkWidget* widget, const wxString& name) {
    if (widget) atk_object_set_name(gtk_widget_get_accessible(widget), name.utf8_str());
}

// The mnemonic of a label leads to the widget that scrolls, which would take the keyboard and show nothing of it.
gboolean focusList(GtkWidget* /*scrolled*/, gboolean /*cycling*/, gpointer list) {
    gtk_widget_grab_focus(GTK_WIDGET(list));
    return TRUE;
}

// The keyboard is in the button of a list that drops down, which no tree of widgets leads a screen reader to.
void nameButton(GtkWidget* widget, gpointer name) {
    if (GTK_IS_TOGGLE_BUTTON(widget)) {
        nameWidget(widget, *static_cast<const wxString*>(name));
        atk_object_set_role(gtk_widget_get_accessible(widget), ATK_ROLE_COMBO_BOX);
    } else if (GTK_IS_CONTAINER(widget)) {
        gtk_container_forall(GTK_CONTAINER(widget), nameButton, name);
    }
}

}  // namespace

// The toolkit has no accessibility of its own on GTK, which knows every widget already: only the name is missing. A
// list lies inside a widget that scrolls it.
void setAccessibleName(wxWindow& window, const wxString& name) {
    window.SetName(name);
    if (GTK_IS_COMBO_BOX(window.GetHandle())) {  // the name of the list itself is what is chosen in it
        wxString copy = name;
        nameButton(window.GetHandle(), &copy);
        nameWidget(gtk_bin_get_child(GTK_BIN(window.GetHandle())), name);
        return;
    }
    nameWidget(window.GetHandle(), name);
    nameWidget(window.GetConnectWidget(), name);
    if (!GTK_IS_SCROLLED_WINDOW(window.GetHandle())) return;
    GtkWidget* list = gtk_bin_get_child(GTK_BIN(window.GetHandle()));
    nameWidget(list, name);
    g_signal_connect(window.GetHandle(), "mnemonic-activate", G_CALLBACK(focusList), list);
}

void setAccessibleDescription(wxWindow& window, const wxString& description) {
    for (GtkWidget* widget : {window.GetHandle(), window.GetConnectWidget()})
        if (widget) atk_object_set_description(gtk_widget_get_accessible(widget), description.utf8_str());
}

}  // namespace vell
