// SPDX-License-Identifier: MIT
#include "console/ConsoleBoxes.h"

#include <array>
#include <utility>
#include <vector>

#include "base/text.h"
#include "console/Screen.h"
#include "platform/EventLoop.h"
#include "platform/Terminal.h"

namespace vell {

namespace {

struct Button {
    Answer Means;
    std::string_view Label;  // its first letter answers, too
};

// The affirmative button first, the negative one last.
std::vector<Button> buttonsOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::Ok:
            return {{Answer::Ok, "OK"}};
        case Buttons::OkCancel:
            return {{Answer::Ok, "OK"}, {Answer::Cancel, "Cancel"}};
        case Buttons::YesNo:
        case Buttons::NoYes:
            return {{Answer::Yes, "Yes"}, {Answer::No, "No"}};
        case Buttons::RetryCancel:
            return {{Answer::Retry, "Retry"}, {Answer::Cancel, "Cancel"}};
        case Buttons::AbortRetryIgnore:
            return {{Answer::Retry, "Retry"}, {Answer::Ignore, "Ignore"}, {Answer::Abort, "Abort"}};
    }
    return {{Answer::Ok, "OK"}};
}

// A question that comes back although it was affirmed (a refused password, a full disk) would come back for ever.
constexpr int mostAffirmations = 3;
constexpr int waitMilliseconds = 50;

}  // namespace

ConsoleBoxes::ConsoleBoxes(Terminal& terminal, Screen& screen, EventLoop& loop)
    : terminal_(terminal), screen_(screen), loop_(loop) {}

Answer ConsoleBoxes::Show(std::string_view text, std::string_view caption, Buttons buttons, BoxIcon /*icon*/) {
    screen_.tell(caption == programCaption ? std::string(text) : std::string(caption) + ": " + std::string(text));
    if (buttons == Buttons::Ok) return Answer::Ok;
    return terminal_.canAsk() && !yesToAll_ ? askPerson(buttons) : answerUnasked(text, buttons);
}

Answer ConsoleBoxes::answerUnasked(std::string_view text, Buttons buttons) {
    if (text != lastQuestion_) timesAffirmed_ = 0;
    lastQuestion_ = text;
    const auto choices = buttonsOf(buttons);
    const bool affirm = yesToAll_ && timesAffirmed_ < mostAffirmations;
    if (affirm) ++timesAffirmed_;
    const Button& chosen = affirm ? choices.front() : choices.back();
    screen_.tell("-> " + std::string(chosen.Label));
    return chosen.Means;
}

Answer ConsoleBoxes::askPerson(Buttons buttons) {
    const auto choices = buttonsOf(buttons);
    std::string prompt;
    for (const Button& button : choices)
        prompt += (prompt.empty() ? "" : "/") + std::string(button.Label);
    while (true) {
        const auto line = askForLine(prompt + "? ", false);
        if (!line) return choices.back().Means;
        const std::string_view typed = Trim(*line);
        for (const Button& button : choices)
            if (!typed.empty() && equalNoCase(button.Label.substr(0, typed.size()), typed)) return button.Means;
    }
}

std::optional<std::string> ConsoleBoxes::askForLine(std::string_view prompt, bool secret) {
    if (!terminal_.canAsk()) return std::nullopt;
    screen_.ask(prompt);
    givenUp_ = false;
    if (secret) terminal_.setEcho(false);
    while (!givenUp_ && !terminal_.isInputReady())
        loop_.WaitForEvents(waitMilliseconds);
    std::optional<std::string> line;
    if (!givenUp_) line = terminal_.ReadLine();
    if (secret) terminal_.setEcho(true);
    if (secret || !line) terminal_.Write(Terminal::Stream::Error, "\n");  // nobody's return key has moved the cursor
    return line;
}

}  // namespace vell
