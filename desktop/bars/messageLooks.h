// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include <wx/colour.h>
#include <wx/string.h>

#include "ui/Message.h"

namespace vell {

struct LocalTime;

// As much of the text as the bar has room for.
[[nodiscard]] wxString firstLines(std::string_view text);

[[nodiscard]] wxColour backColour(Message::Kind kind);

// Weekday and time: messages are not kept for a week.
[[nodiscard]] wxString whenText(const LocalTime& when);

}  // namespace vell
