// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/program/runProgram.h"

namespace vell {

// As runProgram.
[[nodiscard]] std::optional<ProgramEnd> runToEnd(const std::string& systemPath,
                                                 const std::vector<std::string>& arguments,
                                                 std::chrono::milliseconds patience);

}  // namespace vell
