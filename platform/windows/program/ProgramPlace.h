// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace vell {

// Where a program lies and where its user keeps data; paths are the system's.
struct ProgramPlace {
    std::wstring Executable;
    std::wstring DataHome;               // the user's folder for programs' data, on this machine
    std::optional<std::wstring> Wanted;  // the folder named on the command line

    // Of the running process; `wanted` is in UTF-8.
    [[nodiscard]] static ProgramPlace ofThisProcess(const std::optional<std::string>& wanted);

    // The folder for settings and log: the one that was named; the executable's own when it is portable, that is, its
    // settings lie there already or can be written there; else one of the user's. Makes it when it is missing. Raises
    // when that fails.
    [[nodiscard]] std::wstring programFolder() const;
};

}  // namespace vell
