// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/MessageBoxes.h"

namespace vell::test {

// A user who has the answers ready, and presses the negative button when they run out.
class ScriptedBoxes : public MessageBoxes {
  public:
    Answer Show(std::string_view text, std::string_view caption, Buttons buttons, BoxIcon /*icon*/) override {
        Shown.push_back(caption == programCaption ? std::string(text) : std::string(caption).append(": ").append(text));
        LastButtons = buttons;
        if (buttons == Buttons::Ok) return Answer::Ok;
        if (OnQuestion) OnQuestion();
        if (Answers.empty())
            return buttons == Buttons::YesNo || buttons == Buttons::NoYes ? Answer::No : Answer::Cancel;
        const Answer answer = Answers.front();
        Answers.pop_front();
        return answer;
    }

    // All that was shown, each box ended by "|".
    [[nodiscard]] std::string shown() const {
        std::string all;
        for (const std::string& text : Shown)
            all += text + "|";
        return all;
    }

    std::deque<Answer> Answers;      // to questions
    std::vector<std::string> Shown;  // texts, after their caption where they have one of their own
    Buttons LastButtons = Buttons::Ok;
    std::function<void()> OnQuestion;  // while the question is open
};

}  // namespace vell::test
