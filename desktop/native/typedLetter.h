// SPDX-License-Identifier: MIT
#pragma once

#include <wx/string.h>

class wxKeyEvent;

namespace vell {

// The character that a key means in the layout of the moment, whatever script that writes; 0 for none.
[[nodiscard]] wxUniChar typedLetter(const wxKeyEvent& event);

}  // namespace vell
