// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "base/Date.h"

namespace vell {

// Which day the program works on and which it shows.
struct DayState {
    Date gCurrentDate;            // the day of the download run
    std::string gDayFolder;       // that day's folder, backslash at its end; set by CreateDownloadDirPath
    std::optional<Date> cmbDate;  // the day chosen in the date list; none when the list is empty
};

}  // namespace vell
