// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace vell {

// CR, LF and NUL end a command line or cut it short: a name that holds one could carry a second command.
[[nodiscard]] inline bool fitForCommand(std::string_view text) {
    using namespace std::string_view_literals;
    return text.find_first_of("\r\n\0"sv) == std::string_view::npos;
}

}  // namespace vell
