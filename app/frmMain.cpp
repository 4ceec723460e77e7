// SPDX-License-Identifier: MIT
#include "app/frmMain.h"

#include <chrono>
#include <utility>

#include "app/MainView.h"
#include "app/UpdateInstallation.h"
#include "app/WindowPlace.h"
#include "base/text.h"
#include "config/Schedule.h"
#include "platform/Clock.h"
#include "platform/ConnectionApi.h"
#include "platform/Files.h"
#include "platform/InternetApi.h"
#include "platform/MessageBoxes.h"
#include "platform/Process.h"

namespace vell {

namespace {
// Twenty pictures a second are as many as an eye needs; more would cost the run its speed.
constexpr std::chrono::milliseconds paintInterval{50};
// The same for every front-end: they tell one story.
constexpr std::string_view logFileName = "vell.log";
}  // namespace

frmMain::frmMain(const Platform& platform, MainView& view, std::string version)
    : platform_(platform),
      view_(view),
      log_(platform.Time, platform.Disk),
      ini_(platform.Ini, log_),
      loader_(session_.Setup, ini_, log_, log_),
      store_(platform.Disk, platform.Loop, platform.Boxes, ini_, log_, session_.Setup, session_.Day),
      articles_(platform.DesktopShell, platform.Boxes, platform.Loop, log_),
      runBoxes_(session_, platform.Boxes, view),
      runArticles_(platform.DesktopShell, runBoxes_, platform.Loop, log_),
      progress_(session_, view, platform.Loop, platform.Time, log_, paintInterval),
      http_(platform.Internet, platform.Disk, platform.Boxes, progress_, log_, session_.Setup),
      ftp_(session_, platform_, view, progress_, log_, paintInterval),
      list_(http_, store_, platform.Disk, runBoxes_, progress_, log_, session_.Setup, session_.Day, session_.Downloads,
            version),
      browser_(store_, platform.Disk, view, platform.Time, log_, session_.Setup, session_.Day),
      gInet_(platform.Connection, platform.Boxes, log_),
      ras_(platform.Ras, log_),
      link_({session_.Setup, progress_, view, platform.Boxes, platform.Loop, log_, gInet_, ras_}),
      opening_(browser_, store_, articles_, log_, [this](std::string_view text) { progress_.StatusBar(text); }),
      printing_({browser_, store_, articles_, platform.Loop, platform.Boxes, platform.Printer, log_, session_.Setup},
                [this](std::string_view text) { progress_.StatusBar(text); }),
      autoView_(browser_, opening_, platform.Loop, session_.Setup),
      days_(browser_, store_, platform.Boxes, log_),
      run_({session_, view, platform.Loop, platform.Time, platform.Disk, log_, store_, runArticles_, http_, ftp_, list_,
            browser_, progress_}),
      scheduled_(session_, view, platform.Loop, platform.Time, log_, run_, link_, browser_) {
    session_.gVersion = std::move(version);
}

std::string frmMain::programFolder(const Process& process) {
    std::string folder(Trim(process.ProgramFolder()));
    if (!folder.ends_with('\\')) folder += '\\';
    return folder;
}

bool frmMain::Form_Load(Start start) {
    showToday();
    isOnline_ = start == Start::Window || start == Start::Alone;
    if (start != Start::Beside && isRefused()) return false;
    findProgramFolder();
    session_.Setup.UseHTTP = true;
    if (start == Start::Window) {
        mUpdatePending_ = takePendingUpdate(ini_, platform_.Boxes);
        if (mUpdatePending_) return false;
        tellFinishedUpdate(ini_, platform_.Boxes, session_.gVersion);
        view_.placeWindow(loadWindowPlace(ini_));
    }
    loader_.setAppVersion(session_.gVersion);
    loader_.GetSetup();
    if (session_.Setup.Debug > 0) log_.Start(session_.gAppPath, session_.gAppPath + std::string(logFileName));
    GetSchedule(session_.Setup, ini_, log_);
    browser_.PopulateDateCombo();
    if (start == Start::Window) showFirstDay();
    return true;
}

void frmMain::showToday() {
    const Date today = platform_.Time.Now().Day;
    session_.Day.gCurrentDate = today;
    session_.dtFromDate = today;
    session_.dtToDate = today;
    session_.DownloadToday = true;
    view_.showDateRange(today, today);
}

bool frmMain::isRefused() {
    mIsSecondInstance_ = platform_.Program.IsPreviousInstance();
    if (mIsSecondInstance_)
        platform_.Boxes.Show("Program is already running", programCaption, Buttons::Ok, BoxIcon::None);
    return mIsSecondInstance_;
}

void frmMain::findProgramFolder() {
    session_.gAppPath = programFolder(platform_.Program);
    ini_.setAppDir(session_.gAppPath);
    if (!platform_.Disk.PathExists(ini_.settingsFile()))
        platform_.Boxes.Show(
            "Warning. INI file 'vell.ini' not found.\r\nSETUP and SCHEDULE parameters must be set "
            "again.",
            programCaption, Buttons::Ok, BoxIcon::None);
}

void frmMain::showFirstDay() {
    days_.chooseFirst(platform_.Time.Now().Day);
    view_.showAdvertisement(session_.gAppPath + advertisementFile);
    startSchedule();
}

void frmMain::Form_Unload() {
    if (mIsSecondInstance_ || mUpdatePending_) return;
    platform_.Loop.KillTimer(tmrSchedule_);
    if (const auto place = view_.windowPlace()) saveWindowPlace(ini_, *place);
    if (isOnline_) closeConnections();
    log_.Stop();
}

void frmMain::closeConnections() {
    (void)ftp_.StopFTP(true);
    if (!session_.Setup.CloseConnection || link_.StopINET(true)) return;
    constexpr std::string_view failed = "Error! Could not close dial-up connection";
    platform_.Boxes.Show(failed, programCaption, Buttons::Ok, BoxIcon::None);
    log_.WriteLog(failed);
}

void frmMain::chooseToday() {
    session_.DownloadToday = true;
}

void frmMain::chooseRange(const Date& from, const Date& to) {
    session_.DownloadToday = false;
    session_.dtFromDate = from;
    session_.dtToDate = to;
    view_.showDateRange(from, to);
}

void frmMain::chooseOtherFrom() {
    session_.DownloadToday = false;
}

void frmMain::dtFromDate_Change(const Date& from) {
    scheduled_.dtFromDate_Change(from);
}

void frmMain::dtToDate_Change(const Date& to) {
    scheduled_.dtToDate_Change(to);
}

void frmMain::mnuForceDownload_Click() {
    scheduled_.mnuForceDownload_Click();
}

void frmMain::cmdStopDownload_Click() {
    session_.gStopRequested = true;
    // A file that comes in is let come; one whose server has fallen silent would hold up the end of the run.
    platform_.Internet.CancelRequests(InternetApi::Cancel::Stalled);
    platform_.Loop.DoEvents();
    (void)ftp_.StopFTP(true);
    progress_.StatusBar("Download STOPED by user.");
}

void frmMain::endSession() {
    session_.IsEnding = true;
    session_.gStopRequested = true;
    platform_.Connection.CancelWaits();
    platform_.Internet.CancelRequests(InternetApi::Cancel::All);
    ftp_.breakOff();
}

void frmMain::startSchedule() {
    tmrSchedule_ = platform_.Loop.SetTimer(ScheduledRuns::tickMilliseconds, [this] { scheduled_.tmrSchedule_Timer(); });
}

std::vector<std::string> frmMain::dialUpNames() {
    std::vector<std::string> names;
    (void)ras_.VBRasGetAllEntries("", names);
    return names;
}

frmSetup frmMain::setupDialog() {
    return {session_.Setup, loader_, ini_, log_};
}

frmSchedule frmMain::scheduleDialog() {
    return {session_.Setup, ini_, platform_.Boxes, log_};
}

}  // namespace vell
