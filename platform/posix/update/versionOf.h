// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>

namespace vell {

// What a program says of its version, with a line end; empty when it does not end well within the patience. Its output
// goes through the file `answer`. It takes nothing else of the system than the program itself does.
[[nodiscard]] std::string versionOf(const std::string& program, const std::string& answer,
                                    std::chrono::milliseconds patience);

}  // namespace vell
