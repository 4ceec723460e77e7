// SPDX-License-Identifier: MIT
#include "desktop/native/paintAfterLayout.h"

#include <gtk/gtk.h>
#include <wx/gauge.h>

namespace vell {

namespace {

void paint(GtkWidget* bar, GdkRectangle* /*place*/, gpointer /*data*/) {
    gtk_widget_queue_draw(bar);
}

}  // namespace

// GTK asks for a painting when the value changes, and makes the filled part longer when it lays out. When the window is
// painted in between, as for a text of the status line, the bar would stay as short as it was.
void paintAfterLayout(wxGauge& bar) {
    g_signal_connect_after(bar.GetHandle(), "size-allocate", G_CALLBACK(paint), nullptr);
}

}  // namespace vell
