// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "ui/BrowserView.h"

namespace vell {

// A day's clippings as lines of text in UTF-8.

// For people: marks, newspaper, title, type and category in columns, under a header. Columns are cut to fit into
// `width`; 0 cuts nothing.
[[nodiscard]] std::vector<std::string> clippingsTable(const std::vector<ClippingRow>& rows, std::size_t width);

// For programs: marks (O opened, P printed, B both, - neither), newspaper, title, type, category, file and full path,
// separated by tabs.
[[nodiscard]] std::string clippingTsv(const ClippingRow& row);

}  // namespace vell
