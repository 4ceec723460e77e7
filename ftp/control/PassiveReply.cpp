// SPDX-License-Identifier: MIT
#include "ftp/control/PassiveReply.h"

#include <charconv>

#include "base/text.h"

namespace vell {

namespace {

std::optional<std::uint8_t> byteIn(std::string_view digits) {
    std::uint8_t value = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value);
    if (error != std::errc{} || stop != end) return std::nullopt;
    return value;
}

}  // namespace

std::optional<PassiveAddress> parsePassiveReply(std::string_view reply) {
    const std::size_t open = InStr(reply, "(");
    const std::size_t close = InStr(reply, ")", open + 1);
    if (open == 0 || close == 0) return std::nullopt;
    const auto numbers = Split(Mid(reply, open + 1, close - open - 1), ",");
    if (numbers.size() != 6) return std::nullopt;
    PassiveAddress address;
    unsigned port = 0;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto value = byteIn(numbers[i]);
        if (!value) return std::nullopt;
        if (i < 4) address.Host += (i == 0 ? "" : ".") + std::to_string(*value);
        port = (port * 256 + *value) & 0xFFFF;  // only the last two numbers stay
    }
    address.Port = static_cast<std::uint16_t>(port);
    if (address.Port == 0) return std::nullopt;
    return address;
}

}  // namespace vell
