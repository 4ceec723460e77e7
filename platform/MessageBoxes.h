// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace vell {

enum class Buttons { Ok, OkCancel, YesNo, RetryCancel, AbortRetryIgnore };
enum class BoxIcon { None, Information, Question, Warning, Error };
enum class Answer { Ok, Cancel, Yes, No, Retry, Abort, Ignore };

// Tells the user something, or asks. Texts are in code page 1253 and are shown as they are. Returns when the user has
// answered; events happen meanwhile. The front-ends implement it.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    virtual Answer Show(std::string_view text, std::string_view caption, Buttons buttons, BoxIcon icon) = 0;
};

// The caption of every box that has none of its own.
inline constexpr std::string_view programCaption = "Vell";

}  // namespace vell
