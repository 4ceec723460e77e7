// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "base/errors.h"

namespace vell {

// A file as its caller named it, for what is told to people, and as the system knows it.
struct FilePlace {
    std::string Text;    // code page 1253
    std::string System;  // UTF-8
};

// What the program calls a failure that the system tells by errno.
[[nodiscard]] RunTimeError fileError(int systemError, const FilePlace& place);
// Raises it for errno.
[[noreturn]] void raiseFileError(const FilePlace& place);

}  // namespace vell
