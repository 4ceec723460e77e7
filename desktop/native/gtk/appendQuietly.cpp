// SPDX-License-Identifier: MIT
#include "desktop/native/appendQuietly.h"

#include <gtk/gtk.h>
#include <wx/textctrl.h>

namespace vell {

void appendQuietly(wxTextCtrl& control, const wxString& text) {
    GtkWidget* view = gtk_bin_get_child(GTK_BIN(control.GetHandle()));
    GtkTextBuffer* buffer = gtk_text_view_get_buffer(GTK_TEXT_VIEW(view));
    const auto utf8 = text.utf8_str();
    GtkTextIter end;
    gtk_text_buffer_get_end_iter(buffer, &end);
    gtk_text_buffer_insert(buffer, &end, utf8.data(), static_cast<int>(utf8.length()));
}

}  // namespace vell
