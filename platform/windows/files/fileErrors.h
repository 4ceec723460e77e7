// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "base/errors.h"

namespace vell {

// A file as its caller named it, for what is told to people, and as the system knows it.
struct FilePlace {
    std::string Text;     // code page 1253
    std::wstring System;  // absolute, see paths.h
};

// What the program calls a failure that the system tells by GetLastError.
[[nodiscard]] RunTimeError fileError(std::uint32_t systemError, const FilePlace& place);
// Raises it for the last one.
[[noreturn]] void raiseFileError(const FilePlace& place);

// True when the number says that there is no such file, folder, drive or share.
[[nodiscard]] bool isAbsence(std::uint32_t systemError);

}  // namespace vell
