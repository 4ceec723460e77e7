// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "ui/BrowserView.h"

namespace vell {

class Translations;

// What the status line says of the rows that are listed. `all`: how many there are with those that a filter keeps out.
[[nodiscard]] CountTexts countTexts(const std::vector<ClippingRow>& rows, std::size_t all, const Translations& words);

}  // namespace vell
