// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include <wx/string.h>

#include "base/Date.h"

class wxDateTime;

namespace vell {

// The one place where the program's texts (code page 1253) and the toolkit's meet.

// For text that may have several lines.
[[nodiscard]] wxString shownText(std::string_view text);
// For one line: control characters become blanks.
[[nodiscard]] wxString shownLine(std::string_view text);
// For controls that read "&" as the mark of a mnemonic, such as a button or a menu.
[[nodiscard]] wxString shownLabel(std::string_view text);
// What the user typed; a character that the code page does not have becomes "?".
[[nodiscard]] std::string typedText(const wxString& text);

[[nodiscard]] wxDateTime pickerDate(const Date& date);
[[nodiscard]] Date programDate(const wxDateTime& date);

}  // namespace vell
