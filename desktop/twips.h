// SPDX-License-Identifier: MIT
#pragma once

#include <wx/window.h>

namespace vell {

// Lengths that are kept are in twips, 1440 to the inch, so that they mean the same on every display.
inline constexpr int twipsPerDip = 1440 / 96;

[[nodiscard]] inline int pixelsFromTwips(const wxWindow& window, int twips) {
    return window.FromDIP(twips) / twipsPerDip;
}
[[nodiscard]] inline int twipsFromPixels(const wxWindow& window, int pixels) {
    return window.ToDIP(pixels * twipsPerDip);
}

}  // namespace vell
