// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MessageBoxes.h"

namespace vell {

// Message boxes over the window that the user works with.
class WxMessageBoxes : public MessageBoxes {
  public:
    Answer Show(std::string_view text, std::string_view caption, Buttons buttons, BoxIcon icon) override;
    Answer ShowWithDetail(std::string_view text, std::string_view detail, std::string_view caption, Buttons buttons,
                          BoxIcon icon) override;
};

}  // namespace vell
