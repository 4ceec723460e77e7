// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MessageBoxes.h"

namespace vell {

class EventLog;
class MainView;
struct Session;

// The boxes of everything that a run does. While a person's run is under way, or none, they are the front-end's. In
// a run that the schedule began nobody is there to press a button, and the run would wait for it: what a box tells is
// shown in the main window's message frame and logged, and a question gets its negative answer.
class RunBoxes : public MessageBoxes {
  public:
    RunBoxes(const Session& session, MessageBoxes& boxes, MainView& view, EventLog& log)
        : session_(session), boxes_(boxes), view_(view), log_(log) {}

    Answer Show(std::string_view text, std::string_view caption, Buttons buttons, BoxIcon icon) override;

  private:
    const Session& session_;
    MessageBoxes& boxes_;
    MainView& view_;
    EventLog& log_;
};

}  // namespace vell
