// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "base/Date.h"
#include "ftp/listing/CFtpFiles.h"

namespace vell {

// Reads what a server answered to LIST: the Unix long form or the DOS form, told apart line by line. Never fails: a
// field that cannot be read keeps its default, and a line of any other shape gives a record with what could be read.
[[nodiscard]] CFtpFiles ParseListing(std::string_view listing, int currentYear);

// The date of a line in the Unix form. A time of day in the place of the year stands for the current year, and is
// dropped. Nothing when a part cannot be read or the day is not in the calendar.
[[nodiscard]] std::optional<Date> ParseListDate(std::string_view day, std::string_view month,
                                                std::string_view yearOrTime, int currentYear);

}  // namespace vell
