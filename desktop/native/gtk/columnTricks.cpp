// SPDX-License-Identifier: MIT
#include "desktop/native/columnTricks.h"

#include <utility>

#include <gtk/gtk.h>
#include <wx/dataview.h>

namespace vell {

namespace {

using Tell = std::function<void()>;

void resized(GObject* /*column*/, GParamSpec* /*width*/, gpointer tell) {
    (*static_cast<Tell*>(tell))();
}

void forget(gpointer tell, GClosure* /*closure*/) {
    delete static_cast<Tell*>(tell);
}

}  // namespace

void whenResized(wxDataViewColumn& column, std::function<void()> tell) {
    g_signal_connect_data(column.GetGtkHandle(), "notify::width", G_CALLBACK(resized), new Tell(std::move(tell)),
                          forget, GConnectFlags(0));
}

// wxWidgets counts the border in.
int roomForColumns(const wxDataViewCtrl& list) {
    return gtk_widget_get_allocated_width(gtk_bin_get_child(GTK_BIN(list.GetHandle())));
}

int givenWidth(const wxDataViewColumn& column) {
    return gtk_tree_view_column_get_fixed_width(GTK_TREE_VIEW_COLUMN(column.GetGtkHandle()));
}

// Rows with a picture and rows without share one measure, which GTK takes from any of them.
void showPictureOnly(wxDataViewColumn& column, const wxSize& picture) {
    GList* cells = gtk_cell_layout_get_cells(GTK_CELL_LAYOUT(column.GetGtkHandle()));
    for (GList* cell = cells; cell; cell = cell->next) {
        const bool isText = GTK_IS_CELL_RENDERER_TEXT(cell->data);
        gtk_cell_renderer_set_fixed_size(GTK_CELL_RENDERER(cell->data), isText ? 1 : picture.GetWidth(),
                                         isText ? -1 : picture.GetHeight());
    }
    g_list_free(cells);
}

}  // namespace vell
