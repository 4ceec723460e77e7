// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace vell {

// A name on the message bus of the desktop session, one for each program folder. Whoever has it can be asked to show
// its window. A session without a bus has no names, and nobody is asked.
class WindowName {
  public:
    virtual ~WindowName() = default;

    // Takes the name. `raise` is called from GLib's main loop, which a window of this system's has.
    virtual void take(std::function<void()> raise) = 0;
    // Asks whoever has the name, and waits a moment for the answer. False when nobody answers.
    virtual bool ask() const = 0;
};

}  // namespace vell
