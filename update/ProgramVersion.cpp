// SPDX-License-Identifier: MIT
#include "update/ProgramVersion.h"

#include <charconv>

#include "base/text.h"

namespace vell {

namespace {

std::optional<std::int32_t> numberOf(std::string_view digits) {
    constexpr std::size_t mostDigits = 6;
    std::int32_t number = 0;
    if (digits.empty() || digits.size() > mostDigits || (digits[0] == '0' && digits.size() > 1) || digits[0] == '-')
        return std::nullopt;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
    return number;
}

}  // namespace

std::optional<ProgramVersion> ProgramVersion::fromText(std::string_view text) {
    const auto parts = Split(text, ".");
    if (parts.size() != 3) return std::nullopt;
    const auto major = numberOf(parts[0]), minor = numberOf(parts[1]), revision = numberOf(parts[2]);
    if (!major || !minor || !revision) return std::nullopt;
    return ProgramVersion{*major, *minor, *revision};
}

std::string ProgramVersion::text() const {
    return std::to_string(Major) + '.' + std::to_string(Minor) + '.' + std::to_string(Revision);
}

}  // namespace vell
