// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "app/run/FileTransfer.h"
#include "log/EventLog.h"
#include "service/DownloadState.h"

namespace vell {

class ClippingBooks;
class ClippingsBrowser;
class Clock;
class EventLoop;
class Files;
class MainView;
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
        FileTransfer& Transfer;
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
        DownloadEntry Entry;
        std::int64_t Start;  // length that the file had before
        bool IsAdvertisement;
    };

    [[nodiscard]] bool passOver(const DownloadEntry& entry);
    [[nodiscard]] bool attempt(const Turn& turn, FileTransfer::Attempt attempt);
    [[nodiscard]] bool mayTryAgain() const;
    [[nodiscard]] bool retry(const Turn& turn);
    [[nodiscard]] std::int64_t lengthOf(const std::string& path) const;
    [[nodiscard]] std::string counter(std::int32_t index) const;

    Parts p_;
};

}  // namespace vell
