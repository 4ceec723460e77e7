// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "app/RunContext.h"
#include "app/failures/FailedFiles.h"
#include "config/Settings.h"
#include "service/DownloadState.h"

namespace vell {

// What the program is doing about downloads. All but Idle belong to one download, to the end of the program, or to an
// update that somebody has asked for.
enum class Activity { Idle, Connecting, Running, BetweenDays, HangingUp, Updating };

// The state of one session of the program: the only state that is shared. Owned by frmMain.
struct Session {
    std::string gAppPath;  // the program's folder, backslash at its end
    std::string gVersion;  // "major.minor.revision"
    Settings Setup;
    DownloadState Downloads;

    Activity Doing = Activity::Idle;
    RunContext Run;               // of the download under way, else of the last one
    FailedFiles Failed;           // what the runs so far have left missing
    bool gStopRequested = false;  // the user asked the download under way to stop
    bool IsEnding = false;        // the program is to end: no download begins any more

    [[nodiscard]] bool isIdle() const { return Doing == Activity::Idle; }
    // A download run is under way.
    [[nodiscard]] bool gIsBusy() const { return Doing == Activity::Running; }
    // Nobody is there whom what is under way could ask.
    [[nodiscard]] bool isAlone() const {
        return !isIdle() && Doing != Activity::Updating && Run.BegunBy == Starter::Schedule;
    }

    std::int32_t gCurrentFileIndex = 0;     // one-based, in the download list
    std::int32_t gClippingsDownloaded = 0;  // newly marked in this run; a fetched advertisement counts one
    std::int32_t gLastProgressBytes = 0;    // of the previous progress report of the current file

    // The entry of the list that is being fetched; null when none is.
    [[nodiscard]] const DownloadEntry* currentEntry() const;
    [[nodiscard]] std::string currentFile() const;
};

// Says what the program is doing for as long as it lives; after that it does again what it did before.
class ActivityScope {
  public:
    ActivityScope(Session& session, Activity activity) : doing_(session.Doing), before_(session.Doing) {
        doing_ = activity;
    }
    ~ActivityScope() { doing_ = before_; }
    ActivityScope(const ActivityScope&) = delete;
    ActivityScope& operator=(const ActivityScope&) = delete;

  private:
    Activity& doing_;
    Activity before_;
};

}  // namespace vell
