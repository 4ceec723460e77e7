// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vell {

// What came of opening, in ShellExecute's numbers (shellapi.h): anything up to LastFailure is a failure.
namespace shell_code {
inline constexpr int NoResources = 0;
inline constexpr int FileNotFound = 2;
inline constexpr int PathNotFound = 3;
inline constexpr int AccessDenied = 5;
inline constexpr int OutOfMemory = 8;
inline constexpr int NoValidProgram = 11;
inline constexpr int SharingViolation = 26;
inline constexpr int AssociationIncomplete = 27;
inline constexpr int DdeTimeout = 28;
inline constexpr int DdeFailed = 29;
inline constexpr int DdeBusy = 30;
inline constexpr int NoAssociation = 31;
inline constexpr int LibraryNotFound = 32;
inline constexpr int LastFailure = 32;
inline constexpr int Started = 33;
}  // namespace shell_code

// Opens things with the programs that the system has for them.
class Shell {
  public:
    virtual ~Shell() = default;

    // Opens a document, folder or address with its associated program, or starts a program, given by name and found
    // by the system's search, with parameters. Does not wait for what it started, but for the print server's answer, a
    // few seconds at most. The result is a shell_code, or any
    // other number above LastFailure.
    [[nodiscard]] virtual int Open(std::string_view file, std::string_view parameters) = 0;
    // Why the last Open failed, and the remedy, where the system tells it in words that say more than the result; empty
    // otherwise.
    [[nodiscard]] virtual std::string LastReason() const = 0;
};

}  // namespace vell
