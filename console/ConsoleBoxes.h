// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/MessageBoxes.h"

namespace vell {

class EventLoop;
class Screen;
class Terminal;

// Message boxes on a terminal: messages go to the error output; a question is asked when a person is there, else it is
// answered by its negative button, or by its affirmative one when the user has said yes to everything beforehand.
class ConsoleBoxes : public MessageBoxes {
  public:
    ConsoleBoxes(Terminal& terminal, Screen& screen, EventLoop& loop);

    void sayYesToAll() { yesToAll_ = true; }
    // Ends a question that waits: it is answered by its negative button.
    void giveUpQuestion() { givenUp_ = true; }

    Answer Show(std::string_view text, std::string_view caption, Buttons buttons, BoxIcon icon) override;
    // A line that the user types; events happen meanwhile. Nothing when nobody can be asked or the question was given
    // up. A secret is not seen on the screen.
    [[nodiscard]] std::optional<std::string> askForLine(std::string_view prompt, bool secret);

  private:
    [[nodiscard]] Answer answerUnasked(std::string_view text, Buttons buttons);
    [[nodiscard]] Answer askPerson(Buttons buttons);

    Terminal& terminal_;
    Screen& screen_;
    EventLoop& loop_;
    bool yesToAll_ = false;
    bool givenUp_ = false;
    std::string lastQuestion_;
    int timesAffirmed_ = 0;
};

}  // namespace vell
