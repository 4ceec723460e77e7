// SPDX-License-Identifier: MIT
#include "bench/window/measures.h"

#include <gtk/gtk.h>
#include <wx/app.h>
#include <wx/dataview.h>

#include "desktop/MainWindow.h"

namespace measures {

namespace {

wxDataViewCtrl* listIn(wxWindow& window) {
    if (auto* list = dynamic_cast<wxDataViewCtrl*>(&window)) return list;
    for (wxWindow* child : window.GetChildren())
        if (auto* list = listIn(*child)) return list;
    return nullptr;
}

}  // namespace

vell::MainWindow& mainWindow() {
    return dynamic_cast<vell::MainWindow&>(*wxTheApp->GetTopWindow());
}

wxDataViewCtrl& clippingsList() {
    return *listIn(mainWindow());
}

void choose(int command) {
    wxCommandEvent event(wxEVT_MENU, command);
    mainWindow().ProcessWindowEvent(event);
    wxTheApp->ProcessPendingEvents();  // commands begin after the event that asked for them
}

void waitUntilPainted() {
    gtk_test_widget_wait_for_draw(mainWindow().GetHandle());
}

}  // namespace measures
