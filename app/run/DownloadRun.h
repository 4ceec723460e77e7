// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "app/run/ClippingBooks.h"
#include "app/run/FileTransfer.h"
#include "app/run/FileTurns.h"
#include "log/EventLog.h"

namespace vell {

class Articles;
class ClippingsBrowser;
class Clock;
class DownloadList;
class EventLoop;
class Files;
class FtpSession;
class LiveUpdate;
class MainView;
class modGlobal;
class modHTTP;
class TransferProgress;
struct Session;

// One run: fetches every file that the service lists for the day of the run into that day's folder, with retries, and
// marks each clipping whose three files all arrived. The user can stop it at every step.
class DownloadRun {
  public:
    struct Parts {
        Session& State;
        MainView& View;
        EventLoop& Loop;
        const Clock& Time;
        Files& Disk;
        EventLog& Log;
        modGlobal& Store;
        Articles& Article;
        modHTTP& Http;
        FtpSession& Ftp;
        DownloadList& List;
        ClippingsBrowser& Browser;
        TransferProgress& Progress;
        LiveUpdate& Update;
    };
    explicit DownloadRun(const Parts& parts);

    // A download begins, with the connection first: nothing has come yet.
    void downloadBegins();
    // Returns at once when a run is under way. Success and failure show in the status, the log, the index, and for
    // the caller in the session's outcome.
    void StartDownload();

  private:
    void run();
    [[nodiscard]] bool prepare();
    void breakOff();
    void reportNothingToDownload();
    void fetchAll();
    void closeBooks();
    void finish();

    void say(const std::string& text);  // in the status line and the log

    Parts p_;
    FileTransfer transfer_;
    ClippingBooks books_;
    FileTurns turns_;
    bool lastOk_ = true;
    std::size_t turnsEnded_ = 0;  // of the files of the day's list
};

}  // namespace vell
