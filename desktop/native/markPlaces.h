// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "ui/find/FindQuery.h"

class wxTextCtrl;

namespace vell {

// Marks these stretches of a control of several lines as with a pen, and no others. Counted in characters.
void markPlaces(wxTextCtrl& control, const std::vector<FoundPlace>& places);

}  // namespace vell
