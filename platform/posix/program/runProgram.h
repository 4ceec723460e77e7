// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace vell {

struct ProgramEnd {
    bool Succeeded = false;  // with exit code 0
    std::string Output;
    std::string Errors;
};

// Runs a program to its end and gives what it said, in no other language than its own. Arguments without the program's
// own name. Nothing else happens meanwhile. Nothing is given when it could not be started, or had not ended when
// patience did; then it is ended.
[[nodiscard]] std::optional<ProgramEnd> runProgram(const std::string& systemPath,
                                                   const std::vector<std::string>& arguments,
                                                   std::chrono::milliseconds patience);

}  // namespace vell
