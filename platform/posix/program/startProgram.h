// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vell {

// Starts a program without waiting for it; it is nobody's child and reads and writes nothing of ours. Arguments in
// UTF-8, without the program's own name. 0, or the system's error number.
[[nodiscard]] int startProgram(const std::string& systemPath, std::vector<std::string> arguments);

// A program's full path along PATH; empty when there is none.
[[nodiscard]] std::string findProgram(const std::string& name);
[[nodiscard]] bool isProgram(const std::string& systemPath);

}  // namespace vell
