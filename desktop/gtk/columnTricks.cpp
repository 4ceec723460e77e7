// SPDX-License-Identifier: MIT
#include "desktop/columnTricks.h"

#include <gtk/gtk.h>
#include <wx/dataview.h>

namespace vell {

void stretchColumn(wxDataViewColumn& column) {
    auto* native = GTK_TREE_VIEW_COLUMN(column.GetGtkHandle());
    gtk_tree_view_column_set_fixed_width(native, column.GetMinWidth());  // the rest is added to it
    gtk_tree_view_column_set_expand(native, TRUE);
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
