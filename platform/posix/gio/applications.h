// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vell {

// Both start the application that the desktop has for something, and give a shell_code.

// For a document, which must exist, or a folder. What is there to be run is refused.
[[nodiscard]] int startForDocument(const std::string& systemPath);
[[nodiscard]] int startForAddress(const std::string& address);

}  // namespace vell
