// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vell {

// The bytes that a text in base64 (RFC 4648, 4) stands for. Nothing for any other text: line ends, missing padding and
// bits that do not count make it another one.
[[nodiscard]] std::optional<std::string> bytesFromBase64(std::string_view text);

}  // namespace vell
