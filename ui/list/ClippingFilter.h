// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vell {

struct CFtpFile;

// Which clippings are listed: those of at least one of the chosen categories, and of at least one of the chosen types.
// Nothing chosen lets everything pass. Upper and lower case are the same.
struct ClippingFilter {
    std::vector<std::string> Categories;
    std::vector<std::string> Types;

    [[nodiscard]] bool isSet() const { return !Categories.empty() || !Types.empty(); }
    [[nodiscard]] bool passes(const CFtpFile& clipping) const;
    // The choice in words; empty when nothing is chosen.
    [[nodiscard]] std::string text() const;
};

// The categories or types that a clipping's field holds: separated by commas, blanks around them apart.
[[nodiscard]] std::vector<std::string> listedIn(std::string_view field);
[[nodiscard]] bool isAmong(const std::vector<std::string>& names, std::string_view name);

}  // namespace vell
