// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace vell {

// Opens things with the programs that the system has for them.
class Shell {
  public:
    virtual ~Shell() = default;

    // Opens a document, folder or address with its associated program, or starts a program, given by name and found
    // by the system's search, with parameters. Does not wait for what it started. More than 32 is success; otherwise
    // one of ShellExecute's codes: 0 no memory or resources, 2 file not found, 3 path not found, 5 access denied,
    // 8 out of memory, 11 no valid program, 26 sharing violation, 27 association incomplete, 31 no association.
    [[nodiscard]] virtual int Open(std::string_view file, std::string_view parameters) = 0;
};

}  // namespace vell
