// SPDX-License-Identifier: MIT
#include "base/base64.h"

#include <cstdint>

namespace vell {

namespace {

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::size_t groupSize = 4;  // characters, for three bytes

}  // namespace

std::optional<std::string> bytesFromBase64(std::string_view text) {
    if (text.size() % groupSize != 0) return std::nullopt;
    const std::size_t padding = text.ends_with("==") ? 2 : text.ends_with('=') ? 1 : 0;
    std::string bytes;
    std::uint32_t bits = 0;
    int count = 0;  // of bits that make no byte yet
    for (const char c : text.substr(0, text.size() - padding)) {
        const std::size_t value = alphabet.find(c);
        if (value == std::string_view::npos) return std::nullopt;
        bits = bits << 6 | static_cast<std::uint32_t>(value);
        count += 6;
        if (count < 8) continue;
        count -= 8;
        bytes += static_cast<char>(bits >> count & 0xFFU);
        bits &= (1U << count) - 1;
    }
    if (bits != 0) return std::nullopt;
    return bytes;
}

}  // namespace vell
