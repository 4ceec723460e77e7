// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "base/Date.h"
#include "config/Settings.h"
#include "service/DownloadState.h"
#include "store/DayState.h"

namespace vell {

// How a download went, for whoever started it.
struct RunOutcome {
    bool FolderFailed = false;  // the day folder could not be made
    bool ListFailed = false;
    bool FtpFailed = false;     // no FTP session came up
    bool NoConnection = false;  // the machine did not come on line
    bool Stopped = false;
    bool Broken = false;  // an unexpected error ended it
    int FilesFailed = 0;

    [[nodiscard]] bool isGood() const {
        return !NoConnection && !FolderFailed && !ListFailed && !FtpFailed && !Broken && FilesFailed == 0;
    }
};

// The state of one session of the program: the only state that is shared. Owned by frmMain.
struct Session {
    std::string gAppPath;  // the program's folder, backslash at its end
    std::string gVersion;  // "major.minor.revision"
    Settings Setup;
    DayState Day;
    DownloadState Downloads;

    bool gIsBusy = false;          // a download run is under way
    bool gIsTransferring = false;  // it fetches files
    bool gStopRequested = false;   // the user asked to stop
    bool IsEnding = false;         // the program is to end: no run begins any more

    std::int32_t gCurrentFileIndex = 0;     // one-based, in the download list
    std::int32_t gClippingsDownloaded = 0;  // newly marked in this run; a fetched advertisement counts one
    std::int32_t gLastProgressBytes = 0;    // of the previous progress report of the current file

    // The entry of the list that is being fetched; null when none is.
    [[nodiscard]] DownloadEntry* currentEntry();
    [[nodiscard]] const DownloadEntry* currentEntry() const;
    [[nodiscard]] std::string currentFile() const;

    bool DownloadToday = true;  // else the days from dtFromDate to dtToDate
    Date dtFromDate;
    Date dtToDate;

    bool StartedByUser = true;  // the run under way, who can then be asked things; the schedule's runs are alone
    RunOutcome Outcome;         // of the forced download or scheduled run under way, over all of its days
};

}  // namespace vell
