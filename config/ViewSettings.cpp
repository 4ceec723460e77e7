// SPDX-License-Identifier: MIT
#include "config/ViewSettings.h"

#include <charconv>

#include "config/modIni.h"

namespace vell {

namespace {
constexpr std::string_view section = "View";
}  // namespace

std::string ViewSettings::text(std::string_view key, std::string_view otherwise) const {
    std::string value;
    return ini_.VellIniReadString(section, key, value) ? value : std::string(otherwise);
}

int ViewSettings::number(std::string_view key, int otherwise) const {
    const std::string digits = text(key, "");
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return error == std::errc() && end == digits.data() + digits.size() ? value : otherwise;
}

bool ViewSettings::flag(std::string_view key, bool otherwise) const {
    const std::string value = text(key, "");
    return value == "1" || (value != "0" && otherwise);
}

void ViewSettings::keepText(std::string_view key, std::string_view value) {
    if (std::string before; ini_.VellIniReadString(section, key, before) && before == value) return;
    (void)ini_.VellIniWriteString(section, key, value);
}

void ViewSettings::keepNumber(std::string_view key, int value) {
    keepText(key, std::to_string(value));
}

void ViewSettings::keepFlag(std::string_view key, bool value) {
    keepText(key, value ? "1" : "0");
}

}  // namespace vell
