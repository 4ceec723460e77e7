// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "app/DownloadRun.h"
#include "app/FtpSession.h"
#include "app/ScheduledRuns.h"
#include "app/Session.h"
#include "app/TransferProgress.h"
#include "config/SettingsLoader.h"
#include "config/frmSetup.h"
#include "config/modIni.h"
#include "log/EventLog.h"
#include "platform/Platform.h"
#include "service/DownloadList.h"
#include "service/modHTTP.h"
#include "store/Articles.h"
#include "store/modGlobal.h"
#include "ui/ClippingsBrowser.h"

namespace vell {

class MainView;

// The program without its looks: owns the session and all that works on it, starts it up and shuts it down. A
// front-end hands in the platform and its view, and passes on what the user does.
class frmMain {
  public:
    frmMain(const Platform& platform, MainView& view, std::string version);

    enum class Start {
        Alone,   // refused when another instance works in the same program folder
        Beside,  // for commands that only look
    };
    // Brings the session up. False when it was refused; nothing but Form_Unload may then be called.
    [[nodiscard]] bool Form_Load(Start start);
    void Form_Unload();

    // The user's download and its end. The outcome tells how it went.
    void chooseToday();
    void chooseRange(const Date& from, const Date& to);
    void mnuForceDownload_Click();
    void cmdStopDownload_Click();
    // Ends transfers that Stop has let go on.
    void abandonTransfers();
    [[nodiscard]] const RunOutcome& outcome() const { return session_.Outcome; }

    [[nodiscard]] frmSetup setupDialog();
    [[nodiscard]] ClippingsBrowser& browser() { return browser_; }
    [[nodiscard]] const Settings& settings() const { return session_.Setup; }
    // False when the settings file is damaged and was read in part only.
    [[nodiscard]] bool areSettingsWhole() const { return loader_.isWhole(); }

  private:
    [[nodiscard]] static std::string programFolder(const Process& process);

    Platform platform_;
    MainView& view_;
    Session session_;
    EventLog log_;
    modIni ini_;
    SettingsLoader loader_;
    modGlobal store_;
    Articles articles_;
    TransferProgress progress_;
    modHTTP http_;
    FtpSession ftp_;
    DownloadList list_;
    ClippingsBrowser browser_;
    DownloadRun run_;
    ScheduledRuns scheduled_;
    bool mIsSecondInstance_ = false;
};

}  // namespace vell
