// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vell {

// "major.minor.revision".
struct ProgramVersion {
    std::int32_t Major = 0;
    std::int32_t Minor = 0;
    std::int32_t Revision = 0;

    auto operator<=>(const ProgramVersion&) const = default;

    // Nothing unless it is three numbers of up to six digits, none with a needless 0 before it.
    [[nodiscard]] static std::optional<ProgramVersion> fromText(std::string_view text);
    [[nodiscard]] std::string text() const;
};

}  // namespace vell
