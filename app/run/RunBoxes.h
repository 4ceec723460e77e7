// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MessageBoxes.h"

namespace vell {

class MainView;
struct Session;

// The boxes of what a run does by itself. In a run that the schedule began, one that only tells something is shown in
// the main window's message frame: at six in the morning nobody is there to press OK, and the run would wait for it.
class RunBoxes : public MessageBoxes {
  public:
    RunBoxes(const Session& session, MessageBoxes& boxes, MainView& view)
        : session_(session), boxes_(boxes), view_(view) {}

    Answer Show(std::string_view text, std::string_view caption, Buttons buttons, BoxIcon icon) override;

  private:
    const Session& session_;
    MessageBoxes& boxes_;
    MainView& view_;
};

}  // namespace vell
