// SPDX-License-Identifier: MIT
#include "desktop/native/whenAccepted.h"

#include <utility>

#include <gtk/gtk.h>
#include <wx/dialog.h>

namespace vell {

namespace {

using Tell = std::function<void()>;

void answered(GtkDialog* /*dialog*/, gint answer, gpointer tell) {
    if (answer == GTK_RESPONSE_ACCEPT) (*static_cast<Tell*>(tell))();
}

void forget(gpointer tell, GClosure* /*closure*/) {
    delete static_cast<Tell*>(tell);
}

}  // namespace

void whenAccepted(wxDialog& dialog, std::function<void()> tell) {
    g_signal_connect_data(dialog.GetHandle(), "response", G_CALLBACK(answered), new Tell(std::move(tell)), forget,
                          GConnectFlags(0));
}

}  // namespace vell
