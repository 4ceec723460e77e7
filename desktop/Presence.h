// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "desktop/TrayIcon.h"
#include "desktop/native/DesktopNotice.h"

class wxTopLevelWindow;

namespace vell {

struct RunNotice;

// What there is to see of the program on the desktop beside its window, and how the window comes to the front.
class Presence {
  public:
    struct Events {
        std::function<void()> NoticeChosen;
        std::function<void(int id)> CommandChosen;
        std::function<bool(int id)> IsEnabled;
    };
    Presence(wxTopLevelWindow& window, Events events);

    // Gone as soon as the user comes to the window.
    void showNotice(const RunNotice& notice);
    void showTrayIcon(bool wanted);
    // The words for the tray icon.
    void showNextRun(std::string_view text);
    // `token`: the desktop's leave to do so, where it gave one.
    void comeToFront(const std::string& token = {});

  private:
    wxTopLevelWindow& window_;
    Events events_;
    DesktopNotice notice_;
    std::unique_ptr<TrayIcon> tray_;
    wxString nextRun_;
};

}  // namespace vell
