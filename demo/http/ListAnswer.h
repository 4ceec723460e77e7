// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "demo/days/ClippingsTree.h"

namespace vell::demo {

// What the list script answers to a posted form: the records of the days asked for, or an error record. In code page
// 1253. Nothing when the form does not name two real days.
[[nodiscard]] std::optional<std::string> listAnswer(const ClippingsTree& tree, std::string_view form);

// What the alert script answers: the day's alert, or no text. Nothing when the form does not name a real day.
[[nodiscard]] std::optional<std::string> alertAnswer(const ClippingsTree& tree, std::string_view form);

}  // namespace vell::demo
