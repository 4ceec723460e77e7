// SPDX-License-Identifier: MIT
#include "desktop/TrayIcon.h"

#include <memory>
#include <utility>

#include <wx/menu.h>
#include <wx/translation.h>

#include "desktop/commandIds.h"
#include "desktop/pictures.h"

namespace vell {

TrayIcon::TrayIcon(Events events) : events_(std::move(events)) {
    showNextRun({});
    Bind(wxEVT_TASKBAR_LEFT_DOWN, [this](wxTaskBarIconEvent& /*event*/) { events_.WindowWanted(); });
    Bind(wxEVT_MENU, [this](wxCommandEvent& event) {
        if (event.GetId() == command::ShowWindow)
            events_.WindowWanted();
        else
            events_.CommandChosen(event.GetId());
    });
}

TrayIcon::~TrayIcon() {
    RemoveIcon();
}

void TrayIcon::showNextRun(const wxString& text) {
    nextRun_ = text;
    SetIcon(programPicture(), text.empty() ? wxString("Vell") : "Vell\n" + text);
}

wxMenu* TrayIcon::CreatePopupMenu() {
    auto menu = std::make_unique<wxMenu>();
    menu->Append(command::ShowWindow, _("&Open Vell"));
    menu->Append(command::Start, _("&Start download"))->Enable(events_.IsEnabled(command::Start));
    menu->AppendSeparator();
    if (!nextRun_.empty()) menu->Append(wxID_ANY, nextRun_)->Enable(false);
    menu->Append(command::Exit, _("E&xit"));
    return menu.release();  // the toolkit deletes it
}

}  // namespace vell
