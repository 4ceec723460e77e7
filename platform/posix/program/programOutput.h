// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace vell {

// Runs a program and gives what it says, in no other language than its own; its errors are left out, and how it ended
// does not count. Arguments without the program's own name. Nothing else happens meanwhile. Nothing is given when it
// could not be started, or had not ended when patience did; then it is ended.
[[nodiscard]] std::optional<std::string> programOutput(const std::string& systemPath,
                                                       const std::vector<std::string>& arguments,
                                                       std::chrono::milliseconds patience);

}  // namespace vell
