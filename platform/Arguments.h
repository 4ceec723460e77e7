// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vell {

// What the program was called with, its own name apart, in UTF-8; main is given it in the machine's own encoding.
[[nodiscard]] std::vector<std::string> programArguments(int argc, char** argv);
// Where the program lies. Raises std::filesystem::filesystem_error when the system does not tell.
[[nodiscard]] std::filesystem::path programPath();

}  // namespace vell
