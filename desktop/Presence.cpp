// SPDX-License-Identifier: MIT
#include "desktop/Presence.h"

#include <utility>

#include <wx/toplevel.h>

#include "app/news/RunNotice.h"
#include "desktop/native/raiseWindow.h"
#include "desktop/screenText.h"

namespace vell {

Presence::Presence(wxTopLevelWindow& window, Events events)
    : window_(window), events_(std::move(events)), notice_([this](const std::string& token) {
          comeToFront(token);
          events_.NoticeChosen();
      }) {
    window_.Bind(wxEVT_ACTIVATE, [this](wxActivateEvent& event) {
        event.Skip();
        if (event.GetActive()) notice_.withdraw();
    });
}

void Presence::showNotice(const RunNotice& notice) {
    notice_.show(shownLine(notice.Title), shownText(notice.Body));
    window_.RequestUserAttention(wxUSER_ATTENTION_INFO);
}

void Presence::showTrayIcon(bool wanted) {
    tray_.reset();
    if (!wanted) return;
    tray_ = std::make_unique<TrayIcon>(
        TrayIcon::Events{[this] { comeToFront(); }, events_.CommandChosen, events_.IsEnabled});
    tray_->showNextRun(nextRun_);
}

void Presence::showNextRun(std::string_view text) {
    const wxString shown = shownLine(text);
    if (std::exchange(nextRun_, shown) != shown && tray_) tray_->showNextRun(nextRun_);
}

void Presence::comeToFront(const std::string& token) {
    raiseWindow(window_, token);
}

}  // namespace vell
