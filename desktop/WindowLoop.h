// SPDX-License-Identifier: MIT
#pragma once

#include <wx/modalhook.h>
#include <wx/timer.h>

namespace vell {

class AsioEventLoop;

// Marries the program's event loop to the toolkit's, which owns the outer one. While the window waits for the user,
// a timer of the toolkit wakes the program when its next timer is due; between such moments nothing runs. A modal
// dialog may be opened in the middle of the program's work: under it the sockets are looked after, too. While the
// program waits in the middle of its work, its yields handle the window's messages.
class WindowLoop : private wxTimer, private wxModalDialogHook {
  public:
    explicit WindowLoop(AsioEventLoop& loop);
    ~WindowLoop() override;
    WindowLoop(const WindowLoop&) = delete;
    WindowLoop& operator=(const WindowLoop&) = delete;

  private:
    void Notify() override;
    int Enter(wxDialog* dialog) override;
    void Exit(wxDialog* dialog) override;
    void arm();

    AsioEventLoop& loop_;
    int modalDialogs_ = 0;  // that are open, one over the other
};

}  // namespace vell
