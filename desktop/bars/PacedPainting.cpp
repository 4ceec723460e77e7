// SPDX-License-Identifier: MIT
#include "desktop/bars/PacedPainting.h"

namespace vell {

namespace {
constexpr long interval = 50;  // milliseconds
}

void PacedPainting::changed() {
    if (IsRunning()) return;
    const long rest = hasPainted_ ? interval - sinceLast_.Time() : 0;
    if (rest > 0)
        StartOnce(static_cast<int>(rest));
    else
        Notify();
}

void PacedPainting::Notify() {
    hasPainted_ = true;
    paint_();
    sinceLast_.Start();
}

}  // namespace vell
