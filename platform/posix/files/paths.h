// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vell {

// Paths on their way to the system: UTF-8 with slashes, and no slash at the end but for the root itself.

// Raises 52 for names that no file may have: empty ones, and control characters in them.
[[nodiscard]] std::string systemPath(std::string_view path);
// False when systemPath would raise.
[[nodiscard]] bool isUsablePath(std::string_view path);

// "/a/b" gives "/a" and "b"; "b" gives "." and "b"; "/b" gives "/" and "b".
[[nodiscard]] std::string folderOf(const std::string& systemPath);
[[nodiscard]] std::string nameOf(const std::string& systemPath);
[[nodiscard]] std::string joined(const std::string& folder, const std::string& name);

}  // namespace vell
