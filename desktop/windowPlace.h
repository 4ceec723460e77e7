// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "app/MainView.h"

class wxSize;
class wxTopLevelWindow;

namespace vell {

// The window never gets smaller than that, in DIP, unless its display is.
void keepLargerThan(wxTopLevelWindow& window, const wxSize& least);

// Puts the window where it was left, as far as it can be reached and seen whole there.
void placeWindow(wxTopLevelWindow& window, const WindowPlace& place);

// Nothing for a window that fills its display, or none of it.
[[nodiscard]] std::optional<WindowPlace> placeOfWindow(const wxTopLevelWindow& window);

}  // namespace vell
