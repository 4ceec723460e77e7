// SPDX-License-Identifier: MIT
#include "app/WindowPlace.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "base/text.h"
#include "config/modIni.h"

namespace vell {

namespace {

constexpr std::string_view section = "Position";
constexpr int designWidth = 15600;
constexpr int designHeight = 10350;
constexpr int leastCorner = -50;  // a window that touches the edge may stand a little beyond it

struct PlaceKey {
    const char* Key;
    int WindowPlace::*Value;
    int WhenEmpty;
    int Least;
    int WhenLess;
};

constexpr std::array<PlaceKey, 4> placeKeys{{
    {"posTop", &WindowPlace::Top, 1000, leastCorner, 0},
    {"posLeft", &WindowPlace::Left, 1500, leastCorner, 0},
    {"posWidth", &WindowPlace::Width, designWidth, 0, designWidth},
    {"posHeight", &WindowPlace::Height, designHeight, 0, designHeight},
}};

int numberOf(const std::string& text) {
    constexpr double most = 1'000'000;  // wider than any row of displays
    return CInt32(std::clamp(Val(text), -most, most));
}

}  // namespace

WindowPlace loadWindowPlace(const modIni& ini) {
    WindowPlace place;
    for (const PlaceKey& key : placeKeys) {
        std::string text;
        ini.VellIniReadString(section, key.Key, text);
        const int value = text.empty() ? key.WhenEmpty : numberOf(text);
        place.*key.Value = value < key.Least ? key.WhenLess : value;
    }
    return place;
}

void saveWindowPlace(modIni& ini, const WindowPlace& place) {
    ini.VellIniWriteStrings([&] {
        std::vector<IniEdit> edits;
        for (const PlaceKey& key : placeKeys)
            if (place.*key.Value >= key.Least)
                edits.push_back({std::string(section), key.Key, std::to_string(place.*key.Value)});
        return edits;
    });
}

}  // namespace vell
