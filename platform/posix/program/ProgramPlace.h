// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace vell {

// Where a program lies and where its user keeps data; paths are the system's.
struct ProgramPlace {
    std::string Executable;
    std::string DataHome;               // the user's folder for programs' data
    std::optional<std::string> Wanted;  // the folder named on the command line

    // Of the running process. Raises when the system does not tell.
    [[nodiscard]] static ProgramPlace ofThisProcess(std::optional<std::string> wanted);

    // The folder for settings and log: the one that was named; the executable's own when it is portable, that is, its
    // settings lie there already or can be written there; else one of the user's, which an installed program always
    // takes. Makes it when it is missing. Raises when that fails.
    [[nodiscard]] std::string programFolder() const;
};

// The user's, in the system's form.
[[nodiscard]] std::string homeFolder();

}  // namespace vell
