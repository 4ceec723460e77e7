// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "base/text.h"

namespace vell::test {

// The lines of a log without what differs from run to run: date and time in front.
[[nodiscard]] inline std::string plainLog(const std::string& text) {
    std::string plain;
    for (const std::string_view line : Split(text, "\r\n"))
        plain.append(line.substr(Mid(line, 20, 4) == ",   " ? 23 : 0)).append("\n");
    return plain.substr(0, plain.size() - 1);
}

}  // namespace vell::test
