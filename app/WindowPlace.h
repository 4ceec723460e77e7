// SPDX-License-Identifier: MIT
#pragma once

namespace vell {

class modIni;

// What the main window keeps from one session to the next. In twips, 1440 to the inch.
struct WindowPlace {
    int Top = 0;
    int Left = 0;
    int Width = 0;
    int Height = 0;

    bool operator==(const WindowPlace&) const = default;
};

// Keys that are empty or beyond reason give the place that the window was designed for.
[[nodiscard]] WindowPlace loadWindowPlace(const modIni& ini);
void saveWindowPlace(modIni& ini, const WindowPlace& place);

}  // namespace vell
