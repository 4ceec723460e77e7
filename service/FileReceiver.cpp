// SPDX-License-Identifier: MIT
#include "service/FileReceiver.h"

#include <limits>

#include "base/text.h"
#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "service/RunFeedback.h"

namespace vell {

namespace {

constexpr std::size_t readStep = 2048;
constexpr std::size_t blockSize = 128 * readStep;

bool isNetworkPath(std::string_view path) {
    return path.starts_with("\\\\") || path.starts_with("//");
}

void add(std::int32_t& count, std::size_t more) {
    if (more > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max() - count))
        throw RunTimeError(error_number::Overflow, "Overflow");
    count += static_cast<std::int32_t>(more);
}

}  // namespace

FileReceiver::FileReceiver(InternetApi& internet, Files& files, MessageBoxes& boxes, RunFeedback& feedback,
                           EventLog& log)
    : internet_(internet), files_(files), boxes_(boxes), feedback_(feedback), log_(log), block_(blockSize) {}

FileReceiver::End FileReceiver::receive(InternetApi::Object& answer, const std::string& localPath, PartFile& part,
                                        std::int32_t& bytesReceived) {
    part.StartAt(0);
    const std::int64_t announced = internet_.ContentLength(answer);
    if (announced >= 0 && !makeSureOfSpace(localPath, announced)) return End::NoRoom;
    std::size_t filled = 0;
    std::size_t read = 0;
    bool whole = true;
    do {
        read = 0;
        whole = internet_.InternetReadFile(answer, block_.data() + filled, readStep, read);
        add(bytesReceived, read);
        filled += read;
        feedback_.HTTPDownloadProgress(bytesReceived);
        const bool ended = !whole || read == 0;
        if (!ended && filled + readStep <= block_.size()) continue;
        if (!write(localPath, part, {block_.data(), filled}, announced >= 0)) return End::NoRoom;
        filled = 0;
    } while (whole && read > 0);
    return whole ? End::Whole : End::Cut;
}

// What was announced has been asked for already; the disk may have become full since.
bool FileReceiver::write(const std::string& localPath, PartFile& part, std::string_view bytes, bool isAnnounced) {
    const auto size = static_cast<std::int64_t>(bytes.size());
    if (!isAnnounced && !makeSureOfSpace(localPath, size)) return false;
    while (true) {
        try {
            part.Write(bytes);
            return true;
        } catch (const RunTimeError& error) {
            if (error.Number != error_number::DiskFull || isNetworkPath(localPath)) throw;
            if (!wantsRetry(localPath, size)) return false;
        }
    }
}

bool FileReceiver::makeSureOfSpace(const std::string& localPath, std::int64_t bytes) {
    if (isNetworkPath(localPath)) return true;
    // Of the folder: a link in the file's place leads elsewhere, and is replaced.
    while (!HasFreeSpace(Left(localPath, InStrRev(localPath, "\\")), bytes))
        if (!wantsRetry(localPath, bytes)) return false;
    return true;
}

bool FileReceiver::HasFreeSpace(std::string_view localPath, std::int64_t bytes) const {
    const auto free = files_.FreeBytes(localPath);
    return free && *free > static_cast<std::uint64_t>(bytes);
}

bool FileReceiver::wantsRetry(const std::string& localPath, std::int64_t bytes) {
    const std::string question = "Not enough free space available to save " + localPath + ". Please free up at least " +
                                 std::to_string(bytes / 1024) + " kb from your disk and click Retry";
    log_.WriteLog("        " + question);
    return boxes_.Show(question, "Not enough free space", Buttons::RetryCancel, BoxIcon::None) == Answer::Retry;
}

}  // namespace vell
