// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/Session.h"
#include "app/run/DownloadRun.h"
#include "app/run/FtpSession.h"
#include "app/run/InternetLink.h"
#include "app/run/RunBoxes.h"
#include "app/run/ScheduledRuns.h"
#include "app/run/TransferProgress.h"
#include "config/SettingsLoader.h"
#include "config/frmSchedule.h"
#include "config/frmSetup.h"
#include "config/modIni.h"
#include "log/EventLog.h"
#include "net/CWinInetConnection.h"
#include "net/ModRAS.h"
#include "platform/EventLoop.h"
#include "platform/Platform.h"
#include "service/DownloadList.h"
#include "service/modHTTP.h"
#include "store/Articles.h"
#include "store/modGlobal.h"
#include "ui/ClippingOpening.h"
#include "ui/ClippingsBrowser.h"
#include "ui/DayCommands.h"
#include "ui/PrintCommands.h"
#include "ui/dialogs/frmAutoView.h"

namespace vell {

class MainView;

// The program without its looks: owns the session and all that works on it, starts it up and shuts it down. A
// front-end hands in the platform and its view, and passes on what the user does.
class frmMain {
  public:
    frmMain(const Platform& platform, MainView& view, std::string version);

    enum class Start {
        Window,        // of the main window: alone, with the day shown, and the place for updates
        Alone,         // refused when another instance works in the same program folder
        AloneOffline,  // the same for commands that have no use for the internet, and leave its connections as they are
        Beside,        // for commands that only look, or touch nothing that another instance works on
    };
    // Brings the session up. False when it was refused, or when this start is for installing an update; nothing but
    // Form_Unload may then be called.
    [[nodiscard]] bool Form_Load(Start start);
    // Ends the session. A front-end ends the process right after it, whatever is still under way.
    void Form_Unload();
    [[nodiscard]] bool isSecondInstance() const { return mIsSecondInstance_; }

    // The user's download and its end. The outcome tells how it went.
    void chooseToday();
    void chooseRange(const Date& from, const Date& to);
    void mnuForceDownload_Click();
    void cmdStopDownload_Click();
    // The program is to end: what is under way is given up at once, and no run begins any more.
    void endSession();

    // The schedule's timer; it ticks in the event loop from startSchedule on.
    void startSchedule();
    [[nodiscard]] std::optional<LocalTime> nextDue() const { return scheduled_.nextDue(); }
    [[nodiscard]] bool isBusy() const { return session_.gIsBusy; }
    // The user has changed one end of the range, or chosen between today and the range as it stands.
    void chooseOtherFrom();
    void dtFromDate_Change(const Date& from);
    void dtToDate_Change(const Date& to);
    [[nodiscard]] const RunOutcome& outcome() const { return session_.Outcome; }

    [[nodiscard]] frmSetup setupDialog();
    [[nodiscard]] frmSchedule scheduleDialog();
    // The dial-up connections that the setup dialog offers.
    [[nodiscard]] std::vector<std::string> dialUpNames();
    [[nodiscard]] ClippingsBrowser& browser() { return browser_; }
    [[nodiscard]] ClippingOpening& opening() { return opening_; }
    [[nodiscard]] PrintCommands& printing() { return printing_; }
    [[nodiscard]] frmAutoView& autoView() { return autoView_; }
    [[nodiscard]] DayCommands& dayCommands() { return days_; }
    [[nodiscard]] const std::string& version() const { return session_.gVersion; }
    [[nodiscard]] const Settings& settings() const { return session_.Setup; }
    // False when the settings file is damaged and was read in part only.
    [[nodiscard]] bool areSettingsWhole() const { return loader_.isWhole(); }

  private:
    void showToday();
    [[nodiscard]] bool isRefused();
    void findProgramFolder();
    void showFirstDay();
    void closeConnections();
    [[nodiscard]] static std::string programFolder(const Process& process);

    Platform platform_;
    MainView& view_;
    Session session_;
    EventLog log_;
    modIni ini_;
    SettingsLoader loader_;
    modGlobal store_;
    Articles articles_;
    RunBoxes runBoxes_;
    Articles runArticles_;  // printed by a run
    TransferProgress progress_;
    modHTTP http_;
    FtpSession ftp_;
    DownloadList list_;
    ClippingsBrowser browser_;
    CWinInetConnection gInet_;
    ModRAS ras_;
    InternetLink link_;
    ClippingOpening opening_;
    PrintCommands printing_;
    frmAutoView autoView_;
    DayCommands days_;
    DownloadRun run_;
    ScheduledRuns scheduled_;
    bool mIsSecondInstance_ = false;
    bool mUpdatePending_ = false;
    bool isOnline_ = false;  // this session's connections are its to close
    EventLoop::TimerId tmrSchedule_ = 0;
};

}  // namespace vell
