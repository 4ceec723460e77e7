// SPDX-License-Identifier: MIT
#pragma once

class wxGauge;

namespace vell {

// Has the bar painted as long as it is, whatever was painted in between.
void paintAfterLayout(wxGauge& bar);

}  // namespace vell
