// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vell {

// A text as it may stand in the log, in which whatever a server sends must neither pass for a line of the program's
// own nor do anything to the terminal that shows it: control characters but TAB and line ends are ".", a line behind
// the first one that begins with a date and time is indented by two TABs, and what is longer than 64 KB is cut, with a
// note that says so.
[[nodiscard]] std::string logLine(std::string_view text);

}  // namespace vell
