// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <wx/string.h>
#include <wx/taskbar.h>

namespace vell {

// The program's picture in the desktop's notification area, with what is wanted of a program that runs all day.
class TrayIcon : public wxTaskBarIcon {
  public:
    struct Events {
        std::function<void()> WindowWanted;
        std::function<void(int id)> CommandChosen;
        std::function<bool(int id)> IsEnabled;
    };
    explicit TrayIcon(Events events);
    ~TrayIcon() override;

    void showNextRun(const wxString& text);

  private:
    wxMenu* CreatePopupMenu() override;

    Events events_;
    wxString nextRun_;
};

}  // namespace vell
