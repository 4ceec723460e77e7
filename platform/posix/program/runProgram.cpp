// SPDX-License-Identifier: MIT
#include "platform/posix/program/runProgram.h"

#include "platform/posix/program/desktopServices.h"

namespace vell {

std::optional<ProgramEnd> runProgram(const std::string& systemPath, const std::vector<std::string>& arguments,
                                     std::chrono::milliseconds patience) {
    DesktopServices* const desktop = desktopServices().Services;
    if (desktop == nullptr) return std::nullopt;
    return desktop->runProgram(systemPath, arguments, patience);
}

}  // namespace vell
