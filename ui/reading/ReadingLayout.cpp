// SPDX-License-Identifier: MIT
#include "ui/reading/ReadingLayout.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "config/ViewSettings.h"

namespace vell {

namespace {

constexpr std::string_view placeKey = "ReadingPane";

struct Place {
    PanePlace Value;
    std::string_view Name;
    std::string_view SizeKey;
};
constexpr std::array places{
    Place{PanePlace::Below, "Below", "ReadingPaneHeight"},  // for who has not chosen
    Place{PanePlace::Beside, "Beside", "ReadingPaneWidth"},
    Place{PanePlace::Off, "Off", ""},
};

const Place& placeOf(PanePlace value) {
    return *std::ranges::find(places, value, &Place::Value);
}

}  // namespace

PanePlace ReadingLayout::place() const {
    const std::string name = kept_.text(placeKey, "");
    const auto* const found = std::ranges::find(places, name, &Place::Name);
    return found == places.end() ? places.front().Value : found->Value;
}

void ReadingLayout::setPlace(PanePlace place) {
    kept_.keepText(placeKey, placeOf(place).Name);
}

int ReadingLayout::size() const {
    const std::string_view key = placeOf(place()).SizeKey;
    return key.empty() ? 0 : std::max(kept_.number(key, 0), 0);
}

void ReadingLayout::setSize(int twips) {
    const std::string_view key = placeOf(place()).SizeKey;
    if (!key.empty()) kept_.keepNumber(key, twips);
}

}  // namespace vell
