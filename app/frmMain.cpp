// SPDX-License-Identifier: MIT
#include "app/frmMain.h"

#include <chrono>
#include <utility>

#include "app/MainView.h"
#include "app/UpdateInstallation.h"
#include "app/WindowPlace.h"
#include "base/base64.h"
#include "base/text.h"
#include "config/Schedule.h"
#include "platform/Clock.h"
#include "platform/ConnectionApi.h"
#include "platform/Files.h"
#include "platform/Installation.h"
#include "platform/InternetApi.h"
#include "platform/MessageBoxes.h"
#include "platform/Process.h"
#include "ui/list/ListLayout.h"

namespace vell {

namespace {
// The same for every front-end: they tell one story.
constexpr std::string_view logFileName = "vell.log";
}  // namespace

frmMain::frmMain(const Platform& platform, MainView& view, BuildFacts facts)
    : platform_(platform),
      view_(view),
      facts_(std::move(facts)),
      log_(platform.Time, platform.Disk),
      ini_(platform.Ini, log_),
      loader_(session_.Setup, ini_, log_, log_),
      progress_(session_, view, platform.Loop, platform.Time, log_, usualPaintInterval),
      reading_({platform_, view, ini_, log_, session_, [this](std::string_view text) { progress_.StatusBar(text); },
                [this](std::string_view text) { view_.displayInfoMessageBox(text); }}),
      fetching_({platform_, view, session_, ini_, log_, progress_, reading_.Browser, facts_}) {
    session_.gVersion = facts_.Version;
}

std::string frmMain::programFolder(const Process& process) {
    std::string folder(Trim(process.ProgramFolder()));
    if (!folder.ends_with('\\')) folder += '\\';
    return folder;
}

bool frmMain::Form_Load(Start start) {
    platform_.Own.CameUp();
    showToday();
    isOnline_ = start == Start::Window || start == Start::Alone;
    if (start != Start::Beside && isRefused(start)) return false;
    findProgramFolder();
    lookForSettings(start);
    installer().tellPutBack();
    session_.Setup.UseHTTP = true;
    const auto isForUpdate = [this] {
        mUpdatePending_ = takePendingUpdate(ini_, platform_.Boxes);
        const auto fault = mUpdatePending_ ? installUpdate() : std::nullopt;
        if (fault) platform_.Boxes.Show(*fault, programCaption, Buttons::Ok, BoxIcon::Error);
        if (!mUpdatePending_) tellFinishedUpdate(ini_, platform_.Boxes, session_.gVersion);
        return mUpdatePending_;
    };
    if (start == Start::Window) {
        if (isForUpdate()) return false;
        view_.placeWindow(loadWindowPlace(ini_));
    }
    loader_.setAppVersion(session_.gVersion);
    loader_.GetSetup();
    log_.onFailure([this](std::string_view text) { view_.displayInfoMessageBox(text); });
    if (session_.Setup.Debug > 0) log_.Start(session_.gAppPath, session_.gAppPath + std::string(logFileName));
    // Without a window the log is what tells of a settings file that could not be read for it.
    if (start == Start::Alone && isForUpdate()) {
        log_.Stop();
        return false;
    }
    GetSchedule(session_.Setup, ini_, log_);
    reading_.Browser.PopulateDateCombo();
    if (start == Start::Window) showFirstDay();
    return true;
}

void frmMain::showToday() {
    const Date today = platform_.Time.Now().Day;
    session_.Run.Day.gCurrentDate = today;
    fetching_.Forced.reset(today);
}

// The other window comes when this one's box is gone: it would cover the box.
bool frmMain::isRefused(Start start) {
    mIsSecondInstance_ = platform_.Program.IsPreviousInstance();
    if (mIsSecondInstance_)
        platform_.Boxes.Show("Program is already running", programCaption, Buttons::Ok, BoxIcon::None);
    if (mIsSecondInstance_ && start == Start::Window) platform_.Program.RaisePrevious();
    return mIsSecondInstance_;
}

void frmMain::findProgramFolder() {
    session_.gAppPath = programFolder(platform_.Program);
    ini_.setAppDir(session_.gAppPath);
    fetching_.Update.setProgramFolder(session_.gAppPath);
}

void frmMain::lookForSettings(Start start) {
    isFirstStart_ = !platform_.Disk.PathExists(ini_.settingsFile());
    if (isFirstStart_ && start != Start::Window)
        platform_.Boxes.Show(
            "Warning. INI file 'vell.ini' not found.\r\nSETUP and SCHEDULE parameters must be set "
            "again.",
            programCaption, Buttons::Ok, BoxIcon::None);
}

UpdateInstaller frmMain::installer() {
    return {platform_, ini_, log_, facts_.Version, bytesFromBase64(facts_.UpdateKey).value_or(""), session_.gAppPath};
}

bool frmMain::isUpdateReady() const {
    std::string update;
    return ini_.VellIniReadString("General", "Update", update) && update == "1";
}

std::optional<std::string> frmMain::installUpdate() {
    std::string fault;
    if (installer().install(fault)) return std::nullopt;
    return fault;
}

void frmMain::showFirstDay() {
    reading_.Browser.setOrder(keptRowOrder(looks_));
    reading_.Days.chooseFirst(platform_.Time.Now().Day);
    view_.showAdvertisement(session_.gAppPath + advertisementFile);
    if (!settingsComplaint().empty()) view_.displayInfoMessageBox(settingsComplaint());
    fetching_.Scheduled.start();
    fetching_.News.showLastRun();
    fetching_.News.showNextRun();
    reading_.Counts.start();
}

void frmMain::Form_Unload() {
    if (mIsSecondInstance_ || mUpdatePending_) return;
    fetching_.Scheduled.stop();
    // Nothing begins any more; and whoever ends the program is there to be asked, also in the middle of a scheduled
    // run.
    const ActivityScope ending(session_, Activity::HangingUp);
    session_.Run.BegunBy = Starter::Person;
    if (const auto place = view_.windowPlace()) saveWindowPlace(ini_, *place);
    if (isOnline_) closeConnections();
    log_.Stop();
}

void frmMain::closeConnections() {
    (void)fetching_.Ftp.StopFTP(true);
    if (!session_.Setup.CloseConnection || fetching_.Link.StopINET(true)) return;
    constexpr std::string_view failed = "Error! Could not close dial-up connection";
    platform_.Boxes.Show(failed, programCaption, Buttons::Ok, BoxIcon::None);
    log_.WriteLog(failed);
}

void frmMain::endSession() {
    session_.IsEnding = true;
    session_.gStopRequested = true;
    platform_.Connection.CancelWaits();
    platform_.Internet.CancelRequests(InternetApi::Cancel::All);
    fetching_.Ftp.breakOff();
}

std::vector<std::string> frmMain::dialUpNames() {
    std::vector<std::string> names;
    (void)fetching_.Ras.VBRasGetAllEntries("", names);
    return names;
}

void frmMain::settingsSaved() {
    session_.Run.Setup = session_.Setup;
    reading_.AutoView.followSettings();
    reading_.Days.reload();
}

frmSetup frmMain::setupDialog() {
    return frmSetup(
        {session_.Setup, loader_, ini_, log_, platform_.Disk, platform_.Words, platform_.Program.DocumentsFolder()});
}

frmFailedFiles frmMain::failedFiles() {
    return {session_.Failed, platform_.Disk, session_.Setup.LocalDir, platform_.Words, log_};
}

frmSchedule frmMain::scheduleDialog() {
    return {session_.Setup, ini_, platform_.Boxes, log_, platform_.Words};
}

}  // namespace vell
