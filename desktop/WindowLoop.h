// SPDX-License-Identifier: MIT
#pragma once

#include <wx/timer.h>

namespace vell {

class AsioEventLoop;

// Marries the program's event loop to the toolkit's, which owns the outer one. While the window waits for the user,
// a timer of the toolkit wakes the program when its next timer is due, also under modal dialogs; between such moments
// nothing runs. While the program waits in the middle of its work, its yields handle the window's messages.
class WindowLoop : private wxTimer {
  public:
    explicit WindowLoop(AsioEventLoop& loop);
    ~WindowLoop() override;
    WindowLoop(const WindowLoop&) = delete;
    WindowLoop& operator=(const WindowLoop&) = delete;

  private:
    void Notify() override;
    void arm();

    AsioEventLoop& loop_;
};

}  // namespace vell
