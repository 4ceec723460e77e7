// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "log/EventLog.h"
#include "store/DayIndex.h"

namespace vell {

class Articles;
class ClippingsBrowser;
class Clock;
class DownloadList;
class EventLoop;
class Files;
class FtpSession;
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
    };
    explicit DownloadRun(const Parts& parts);

    // Returns at once when a run is under way. Success and failure show in the status, the log, the index, and for
    // the caller in the session's outcome.
    void StartDownload();

  private:
    // What one file's turn in the run knows.
    struct FileTurn {
        std::int32_t Index;
        std::string Name;
        std::int64_t Start;  // bytes of it that were there before
        bool IsAdvertisement;
    };

    void run();
    [[nodiscard]] bool prepare();
    void reportNothingToDownload();
    void fetchAll();
    void fetchOne(std::int32_t index);
    [[nodiscard]] bool attempt(const FileTurn& turn);
    [[nodiscard]] bool retry(const FileTurn& turn);
    [[nodiscard]] bool adownloadFile(const std::string& name, const std::string& localPath);
    void keepBooks(const std::string& name, bool ok);
    void markDownloaded(const std::string& pdfName);
    void printWhenNew(const FileTurn& turn);
    void finish();

    void say(const std::string& text);  // in the status line and the log
    [[nodiscard]] std::string counter(std::int32_t index) const;
    [[nodiscard]] std::int64_t localSize(const std::string& name) const;

    Parts p_;
    DayIndex index_;
    bool pdfOk_ = false;
    bool textOk_ = false;
    bool lastOk_ = true;
};

}  // namespace vell
