// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/BuildFacts.h"
#include "app/Reading.h"
#include "app/Session.h"
#include "app/failures/frmFailedFiles.h"
#include "app/progress/TransferProgress.h"
#include "app/run/Fetching.h"
#include "config/SettingsLoader.h"
#include "config/ViewSettings.h"
#include "config/frmSchedule.h"
#include "config/frmSetup.h"
#include "config/modIni.h"
#include "log/EventLog.h"
#include "platform/Platform.h"
#include "update/UpdateInstaller.h"

namespace vell {

class MainView;

// The program without its looks: owns the session and all that works on it, starts it up and shuts it down. A
// front-end hands in the platform and its view, and passes on what the user does.
class frmMain {
  public:
    frmMain(const Platform& platform, MainView& view, BuildFacts facts);

    enum class Start {
        Window,        // of the main window: alone, with the day shown
        Alone,         // refused when another instance works in the same program folder; this and the window's are for
                       // an update that is ready
        AloneOffline,  // the same for commands that have no use for the internet, and leave its connections as they are
        Beside,        // for commands that only look, or touch nothing that another instance works on
    };
    // Brings the session up. False when it was refused, or when this start is for installing an update; nothing but
    // Form_Unload may then be called.
    [[nodiscard]] bool Form_Load(Start start);
    // Ends the session. A front-end ends the process right after it, whatever is still under way.
    void Form_Unload();
    [[nodiscard]] bool isSecondInstance() const { return mIsSecondInstance_; }
    // There is no settings file yet. A front-end without a window has told so; a window leads its user to Setup.
    [[nodiscard]] bool isFirstStart() const { return isFirstStart_; }

    // The program is to end: what is under way is given up at once, and no run begins any more.
    void endSession();

    [[nodiscard]] Downloads& downloads() { return fetching_.Forced; }
    [[nodiscard]] ScheduledRuns& schedule() { return fetching_.Scheduled; }
    [[nodiscard]] LiveUpdate& update() { return fetching_.Update; }
    // A newer version lies here, to be installed at the next start.
    [[nodiscard]] bool isUpdateReady() const;
    // Puts the version that lies ready in the place of this one. What people are told of it, when it fails.
    [[nodiscard]] std::optional<std::string> installUpdate();
    // This start is over: it was for installing an update. The program is to begin anew.
    [[nodiscard]] bool isUpdatePending() const { return mUpdatePending_; }
    [[nodiscard]] RunNews& news() { return fetching_.News; }
    [[nodiscard]] Reading& reading() { return reading_; }
    // What the user has chosen of the window's looks; there once the session is up.
    [[nodiscard]] ViewSettings& viewSettings() { return looks_; }

    [[nodiscard]] frmSetup setupDialog();
    [[nodiscard]] frmSchedule scheduleDialog();
    [[nodiscard]] frmFailedFiles failedFiles();
    // The user has saved other settings: a run goes on with them, and the days may lie in another folder.
    void settingsSaved();
    // The dial-up connections that the setup dialog offers.
    [[nodiscard]] std::vector<std::string> dialUpNames();
    [[nodiscard]] const std::string& version() const { return session_.gVersion; }
    [[nodiscard]] const Settings& settings() const { return session_.Setup; }
    // False when the settings file is there and could not be read.
    [[nodiscard]] bool hasSettings() const { return loader_.hasRead(); }
    // What people are told of a settings file that is damaged; empty for a good one. A window shows it by itself.
    [[nodiscard]] std::string_view settingsComplaint() const { return loader_.complaint(); }

  private:
    void showToday();
    [[nodiscard]] bool isRefused(Start start);
    void findProgramFolder();
    void lookForSettings(Start start);
    void showFirstDay();
    void closeConnections();
    [[nodiscard]] static std::string programFolder(const Process& process);

    [[nodiscard]] UpdateInstaller installer();

    Platform platform_;
    MainView& view_;
    BuildFacts facts_;
    Session session_;
    EventLog log_;
    modIni ini_;
    ViewSettings looks_{ini_};
    SettingsLoader loader_;
    TransferProgress progress_;
    Reading reading_;
    Fetching fetching_;
    bool mIsSecondInstance_ = false;
    bool mUpdatePending_ = false;
    bool isFirstStart_ = false;
    bool isOnline_ = false;  // this session's connections are its to close
};

}  // namespace vell
