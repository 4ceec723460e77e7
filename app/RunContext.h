// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "app/failures/FailedFile.h"
#include "app/run/RunSummary.h"
#include "config/Settings.h"
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

enum class Starter { Person, Schedule };

// What a download is about, from its begin to its end, whatever happens around it meanwhile.
struct RunContext {
    // The day that is fetched, which is the chosen one for all that the run does. Another one only after it has ended.
    DayState Day;
    // A person can be asked things; the schedule's runs are alone, and nobody would answer.
    Starter BegunBy = Starter::Person;
    Date FirstDay;
    // What is to be fetched of their days; of a day that has none here, everything.
    std::vector<FailedFile> Only;
    RunOutcome Outcome;  // over all days
    RunSummary Summary;
    bool HasAskedForUpdate = false;  // of the program
    std::string Told;                // the message that its exchanges with the service have shown last
    Failure LastFailure;             // of the attempt that was made last, when it has failed
    // As they were at the begin, or as the user has saved them since: what is only being tried out in the setup dialog
    // is no matter of the run.
    Settings Setup;
};

}  // namespace vell
