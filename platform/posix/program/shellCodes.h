// SPDX-License-Identifier: MIT
#pragma once

namespace vell {

// ShellExecute's results that have a cause here; see Shell.h.
namespace shell_code {
inline constexpr int FileNotFound = 2;
inline constexpr int PathNotFound = 3;
inline constexpr int AccessDenied = 5;
inline constexpr int OutOfMemory = 8;
inline constexpr int NoValidProgram = 11;
inline constexpr int SharingViolation = 26;
inline constexpr int AssociationIncomplete = 27;
inline constexpr int NoAssociation = 31;
inline constexpr int Started = 33;
}  // namespace shell_code

}  // namespace vell
