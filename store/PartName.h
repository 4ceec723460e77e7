// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vell {

// How many characters a part's name has more than its file's.
inline constexpr std::size_t partNameExtra = 15;

// The name of the part in which a version of an article file arrives, beside the file. A version is told by the change
// field of its clipping: what came of one is no beginning of another.
[[nodiscard]] std::string partName(std::string_view fileName, std::string_view changeField);
// Is `name` that of a part of that file, in whatever version?
[[nodiscard]] bool isPartOf(std::string_view name, std::string_view fileName);

}  // namespace vell
