// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vell {

// What prints a document; by the name that the program calls it on every system.
inline constexpr std::string_view pdfReader = "Acrord32.exe";

// True for addresses of the schemes that lead to a browser or a mail program. A drive letter is none.
[[nodiscard]] bool isAddress(std::string_view text);
// True for names of what some desktop would run, or would ask the user to run, on opening it.
[[nodiscard]] bool hasRunnableEnding(std::string_view name);
// The parts of a command line: separated by blanks, which count as letters between quotation marks.
[[nodiscard]] std::vector<std::string> splitParameters(std::string_view parameters);

}  // namespace vell
