// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vell {

// What the desktop made of something that it was to open.
struct Opening {
    int Code;            // a shell_code
    std::string Reason;  // why the desktop could not even be asked; empty otherwise
};

// Both hand something to the application that the desktop has for it.

// A document, which must exist, or a folder. What is there to be run is refused.
[[nodiscard]] Opening openWithApplication(const std::string& systemPath);
// An address of a scheme that leads to a browser or a mail program.
[[nodiscard]] Opening openAddress(const std::string& address);

}  // namespace vell
