// SPDX-License-Identifier: MIT
#include "desktop/native/DesktopNotice.h"

#include <utility>

#include <wx/notifmsg.h>

namespace vell {

class DesktopNotice::Native : public wxNotificationMessage {
  public:
    explicit Native(Chosen chosen) {
        Bind(wxEVT_NOTIFICATION_MESSAGE_CLICK,
             [chosen = std::move(chosen)](wxCommandEvent& /*event*/) { chosen(std::string()); });
    }
};

DesktopNotice::DesktopNotice(Chosen chosen) : native_(std::make_unique<Native>(std::move(chosen))) {}

DesktopNotice::~DesktopNotice() = default;

void DesktopNotice::show(const wxString& title, const wxString& body) {
    native_->SetTitle(title);
    native_->SetMessage(body);
    native_->Show();
}

void DesktopNotice::withdraw() {
    native_->Close();
}

}  // namespace vell
