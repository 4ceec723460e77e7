// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vell {

// Both hand something to the application that the desktop has for it, and give a shell_code.

// A document, which must exist, or a folder. What is there to be run is refused.
[[nodiscard]] int openWithApplication(const std::string& systemPath);
// An address of a scheme that leads to a browser or a mail program.
[[nodiscard]] int openAddress(const std::string& address);
// True for those schemes. A drive letter is none.
[[nodiscard]] bool isAddress(const std::string& text);

}  // namespace vell
