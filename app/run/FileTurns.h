// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "log/EventLog.h"

namespace vell {

class ClippingBooks;
class ClippingsBrowser;
class Clock;
class EventLoop;
class Files;
class FtpSession;
class MainView;
class modHTTP;
class TransferProgress;
struct Session;

// The turn of one file of the download list after the other: attempts until it has come, the books, the printing.
class FileTurns {
  public:
    struct Parts {
        Session& State;
        MainView& View;
        EventLoop& Loop;
        const Clock& Time;
        Files& Disk;
        EventLog& Log;
        modHTTP& Http;
        FtpSession& Ftp;
        ClippingBooks& Books;
        ClippingsBrowser& Browser;
        TransferProgress& Progress;
    };
    explicit FileTurns(const Parts& parts) : p_(parts) {}

    // Of the file with that one-based number in the list. False when it has not come.
    bool take(std::int32_t index);

  private:
    struct Turn {
        std::int32_t Index;
        std::string Name;
        std::int64_t Start;  // bytes of it that were there before
        bool IsAdvertisement;
    };

    [[nodiscard]] bool attempt(const Turn& turn);
    [[nodiscard]] bool retry(const Turn& turn);
    [[nodiscard]] bool adownloadFile(const std::string& name, const std::string& localPath);
    [[nodiscard]] std::string counter(std::int32_t index) const;

    Parts p_;
};

}  // namespace vell
