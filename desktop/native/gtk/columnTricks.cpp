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

void clicked(GtkTreeViewColumn* /*header*/, gpointer tell) {
    (*static_cast<Tell*>(tell))();
}

gboolean pressed(GtkWidget* /*header*/, GdkEventButton* event, gpointer tell) {
    if (event->type != GDK_BUTTON_PRESS || event->button != GDK_BUTTON_SECONDARY) return FALSE;
    (*static_cast<Tell*>(tell))();
    return TRUE;
}

void refuseKeyboard(GtkWidget* header, GParamSpec* /*canFocus*/, gpointer /*data*/) {
    if (gtk_widget_get_can_focus(header)) gtk_widget_set_can_focus(header, FALSE);
}

void forget(gpointer tell, GClosure* /*closure*/) {
    delete static_cast<Tell*>(tell);
}

}  // namespace

void whenResized(wxDataViewColumn& column, std::function<void()> tell) {
    g_signal_connect_data(column.GetGtkHandle(), "notify::width", G_CALLBACK(resized), new Tell(std::move(tell)),
                          forget, GConnectFlags(0));
}

void whenHeaderClicked(wxDataViewColumn& column, std::function<void()> tell) {
    GtkTreeViewColumn* header = GTK_TREE_VIEW_COLUMN(column.GetGtkHandle());
    gtk_tree_view_column_set_clickable(header, TRUE);
    g_signal_connect_data(header, "clicked", G_CALLBACK(clicked), new Tell(std::move(tell)), forget, GConnectFlags(0));
}

void whenHeaderRightClicked(wxDataViewColumn& column, std::function<void()> tell) {
    GtkWidget* header = gtk_tree_view_column_get_button(GTK_TREE_VIEW_COLUMN(column.GetGtkHandle()));
    g_signal_connect_data(header, "button-press-event", G_CALLBACK(pressed), new Tell(std::move(tell)), forget,
                          GConnectFlags(0));
}

// GTK lets headers have it that can be clicked or drawn, gives it to them after either, and says so again whenever one
// changes its looks.
void keepKeyboardOut(wxDataViewColumn& column) {
    GtkWidget* header = gtk_tree_view_column_get_button(GTK_TREE_VIEW_COLUMN(column.GetGtkHandle()));
    gtk_widget_set_can_focus(header, FALSE);
    g_signal_connect(header, "notify::can-focus", G_CALLBACK(refuseKeyboard), nullptr);
}

void putInOrder(wxDataViewCtrl& list, const std::vector<wxDataViewColumn*>& columns) {
    auto* view = GTK_TREE_VIEW(gtk_bin_get_child(GTK_BIN(list.GetHandle())));
    GtkTreeViewColumn* before = nullptr;
    for (const wxDataViewColumn* column : columns) {
        auto* handle = GTK_TREE_VIEW_COLUMN(column->GetGtkHandle());
        gtk_tree_view_move_column_after(view, handle, before);
        before = handle;
    }
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
