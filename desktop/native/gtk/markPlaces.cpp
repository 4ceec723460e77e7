// SPDX-License-Identifier: MIT
#include "desktop/native/markPlaces.h"

#include <gtk/gtk.h>
#include <wx/textctrl.h>

namespace vell {

namespace {

GtkTextTag* penIn(GtkTextBuffer* buffer) {
    constexpr const char* name = "found";
    GtkTextTag* pen = gtk_text_tag_table_lookup(gtk_text_buffer_get_tag_table(buffer), name);
    if (pen) return pen;
    return gtk_text_buffer_create_tag(buffer, name, "background", "#ffe680", "foreground", "#000000", nullptr);
}

}  // namespace

void markPlaces(wxTextCtrl& control, const std::vector<FoundPlace>& places) {
    GtkTextBuffer* buffer = gtk_text_view_get_buffer(GTK_TEXT_VIEW(gtk_bin_get_child(GTK_BIN(control.GetHandle()))));
    GtkTextTag* pen = penIn(buffer);
    GtkTextIter from, to;
    gtk_text_buffer_get_bounds(buffer, &from, &to);
    gtk_text_buffer_remove_tag(buffer, pen, &from, &to);
    for (const FoundPlace& place : places) {
        gtk_text_buffer_get_iter_at_offset(buffer, &from, static_cast<int>(place.From));
        gtk_text_buffer_get_iter_at_offset(buffer, &to, static_cast<int>(place.From + place.Length));
        gtk_text_buffer_apply_tag(buffer, pen, &from, &to);
    }
}

}  // namespace vell
