// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace vell {

enum class Buttons {
    Ok,
    OkCancel,
    YesNo,
    NoYes,  // the same for what cannot be undone: who presses Enter without reading says no
    RetryCancel,
    AbortRetryIgnore
};
enum class BoxIcon { None, Information, Question, Warning, Error };
enum class Answer { Ok, Cancel, Yes, No, Retry, Abort, Ignore };

// Tells the user something, or asks. Texts are in code page 1253 and are shown as they are. Returns when the user has
// answered; events happen meanwhile. The front-ends implement it.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    virtual Answer Show(std::string_view text, std::string_view caption, Buttons buttons, BoxIcon icon) = 0;
    // The same, with a word on what it would act on where the front-end has a place for it beside the text.
    virtual Answer ShowWithDetail(std::string_view text, std::string_view /*detail*/, std::string_view caption,
                                  Buttons buttons, BoxIcon icon) {
        return Show(text, caption, buttons, icon);
    }
};

// The caption of every box that has none of its own.
inline constexpr std::string_view programCaption = "Vell";

}  // namespace vell
