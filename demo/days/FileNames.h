// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace vell::demo {

// True for a name that can lead nowhere but into the folder it is put in, on every system: printable ASCII, no
// separators, colons or wildcards, no dot at either end, at most 100 characters.
[[nodiscard]] bool isPlainName(std::string_view name);

// The plain file of that name in the folder; a name that differs only in case finds it too.
[[nodiscard]] std::optional<std::filesystem::path> fileNamed(const std::filesystem::path& folder,
                                                             std::string_view name);

}  // namespace vell::demo
