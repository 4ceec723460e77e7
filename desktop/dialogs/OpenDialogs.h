// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

#include <wx/dialog.h>
#include <wx/weakref.h>

class wxIdleEvent;

namespace vell {

// The main window's dialogs. The window takes no input while one is open, but the dialog runs no event loop of its own:
// that would hold up whatever the program is in the middle of, for example a download, until somebody closed it.
class OpenDialogs {
  public:
    OpenDialogs();
    ~OpenDialogs();
    OpenDialogs(const OpenDialogs&) = delete;
    OpenDialogs& operator=(const OpenDialogs&) = delete;

    // Opens it, comes back at once, and deletes it when it has been closed. `accepted` is called when OK closed it.
    void open(wxDialog* dialog, const std::function<void()>& accepted = {});
    // Brings the one that is open to the front. False when there is none.
    bool raise();

  private:
    void sweep(wxIdleEvent& event);

    std::vector<wxWeakRef<wxDialog>> dialogs_;
};

}  // namespace vell
