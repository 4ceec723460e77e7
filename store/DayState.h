// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vell {

// Which day the program works on and which it shows.
struct DayState {
    std::string gCurrentDate;  // "ddmmyyyy", the day of the download run
    std::string gDayFolder;    // that day's folder, backslash at its end; set by CreateDownloadDirPath
    std::string cmbDate;       // "dd/mm/yyyy", the day chosen in the date list; empty when the list is
};

}  // namespace vell
