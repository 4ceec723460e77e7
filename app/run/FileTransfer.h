// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "log/EventLog.h"
#include "platform/Files.h"

namespace vell {

class Clock;
class EventLoop;
class FtpSession;
class RunFeedback;
class modHTTP;
struct DownloadEntry;
struct Session;

// Attempts at files of the download list. What comes goes to a part beside the file, which stays as it is until the
// part is whole and takes its place. Over FTP the next attempt, of this run or a later one, goes on with the part.
class FileTransfer {
  public:
    struct Parts {
        Session& State;
        EventLoop& Loop;
        const Clock& Time;
        Files& Disk;
        EventLog& Log;
        modHTTP& Http;
        FtpSession& Ftp;
        RunFeedback& Feedback;
    };
    explicit FileTransfer(const Parts& parts) : p_(parts) {}

    // A run begins; to be called before it stores the day's new list.
    void begin();
    // One attempt. After the last one, and where there is no older file, a complete answer of another length than the
    // list's is better than nothing and kept, but false all the same.
    enum class Attempt { Repeatable, Last };
    [[nodiscard]] bool adownloadFile(const DownloadEntry& entry, const std::string& folder, Attempt attempt);

  private:
    [[nodiscard]] std::unique_ptr<PartFile> waitForPart(const std::string& path);
    [[nodiscard]] bool fetch(const DownloadEntry& entry, const std::string& path, PartFile& part);
    [[nodiscard]] std::int64_t startOffset(const DownloadEntry& entry, const std::string& path, PartFile& part);
    [[nodiscard]] bool take(const DownloadEntry& entry, const std::string& path, PartFile& part, Attempt attempt);
    void dropOtherVersions(const DownloadEntry& entry, const std::string& folder);

    Parts p_;
    // When the index was written that lay there before. A file that is older may be of any version.
    std::optional<std::int64_t> listedAt_;
    std::vector<std::string> leftOver_;  // names of the parts that lay in the day's folder when the run began
};

}  // namespace vell
