// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vell {

class Translations;
struct CFtpFile;

// Which clippings are listed: those of at least one of the chosen categories, of at least one of the chosen types and
// of one of the chosen newspapers. Nothing chosen lets everything pass; an empty name stands for clippings that have
// none. Upper and lower case are the same.
struct ClippingFilter {
    std::vector<std::string> Categories{};
    std::vector<std::string> Types{};
    std::vector<std::string> Newspapers{};

    [[nodiscard]] bool isSet() const { return !Categories.empty() || !Types.empty() || !Newspapers.empty(); }
    [[nodiscard]] bool passes(const CFtpFile& clipping) const;
    // The choice in words; empty when nothing is chosen.
    [[nodiscard]] std::string text(const Translations& words) const;
};

// What a clipping has of each. Categories and types are separated by commas, blanks around them apart; a newspaper's
// name may hold a comma of its own.
[[nodiscard]] std::vector<std::string> categoriesOf(const CFtpFile& clipping);
[[nodiscard]] std::vector<std::string> typesOf(const CFtpFile& clipping);
[[nodiscard]] std::vector<std::string> newspapersOf(const CFtpFile& clipping);

[[nodiscard]] bool isAmong(const std::vector<std::string>& names, std::string_view name);

}  // namespace vell
