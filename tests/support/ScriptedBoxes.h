// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <string>

#include "platform/MessageBoxes.h"

namespace vell::test {

// A user who has the answers ready, and presses the negative button when they run out.
class ScriptedBoxes : public MessageBoxes {
  public:
    Answer Show(std::string_view text, std::string_view caption, Buttons buttons, BoxIcon /*icon*/) override {
        Shown.append(caption == programCaption ? "" : caption).append(caption == programCaption ? "" : ": ");
        Shown.append(text).append("|");
        if (buttons == Buttons::Ok) return Answer::Ok;
        if (OnQuestion) OnQuestion();
        if (Answers.empty()) return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
        const Answer answer = Answers.front();
        Answers.pop_front();
        return answer;
    }

    std::deque<Answer> Answers;        // to questions
    std::string Shown;                 // every box: its caption, where it has one of its own, its text, "|"
    std::function<void()> OnQuestion;  // while the question is open
};

}  // namespace vell::test
