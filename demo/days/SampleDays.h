// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "base/Date.h"

namespace vell::demo {

// Fills an empty tree with sample days: today, none for yesterday, the day before it and one more, with users and an
// advertisement. A tree that this made earlier moves with the calendar: its sample days are made for the new dates,
// and the old ones go unless somebody changed something in them. Any other tree stays as it is.
// The files come from the folder samples. Throws std::filesystem::filesystem_error.
void prepareTree(const std::filesystem::path& root, const Date& today, const std::filesystem::path& samples);

// Where the samples lie that came with this program.
[[nodiscard]] std::filesystem::path installedSamples();

}  // namespace vell::demo
