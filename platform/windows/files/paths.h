// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vell {

// Paths on their way to the system: absolute UTF-16, of any length, and no backslash at the end but for a drive's own.

// Raises 52 for names that no file may have: empty ones, control characters in them, the names of devices, and the
// second streams of files.
[[nodiscard]] std::wstring systemPath(std::string_view path);
// The same for a path of the system's own, in UTF-8.
[[nodiscard]] std::wstring systemPathFromUtf8(const std::string& path);
// False when systemPath would raise.
[[nodiscard]] bool isUsablePath(std::string_view path);
// A folder on another machine.
[[nodiscard]] bool isOnShare(const std::wstring& systemPath);
// As people and other programs know it: without what allows for any length.
[[nodiscard]] std::wstring plainPath(const std::wstring& systemPath);

// "C:\a\b" gives "C:\a" and "b"; "C:\b" gives "C:\" and "b".
[[nodiscard]] std::wstring folderOf(const std::wstring& systemPath);
[[nodiscard]] std::wstring nameOf(const std::wstring& systemPath);
[[nodiscard]] std::wstring joined(const std::wstring& folder, const std::wstring& name);

}  // namespace vell
