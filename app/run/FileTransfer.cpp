// SPDX-License-Identifier: MIT
#include "app/run/FileTransfer.h"

#include <chrono>

#include "app/Session.h"
#include "app/run/FtpSession.h"
#include "base/text.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"
#include "service/FailureLog.h"
#include "service/WebPage.h"
#include "service/modHTTP.h"
#include "store/IndexFile.h"
#include "store/PartName.h"

namespace vell {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

// How long another program's transfer of the same file is waited for in one attempt.
constexpr seconds longestWait{60};
constexpr milliseconds waitStep{200};

bool isAdvertisement(const DownloadEntry& entry) {
    return equalNoCase(entry.FileName, advertisementFile);
}

// Does the list say how long the file is? The advertisement's size is a guess.
bool hasSize(const DownloadEntry& entry) {
    return entry.Size > 0 && !isAdvertisement(entry);
}

}  // namespace

void FileTransfer::begin() {
    leftOver_.clear();
    listedAt_.reset();
    trapStep(p_.Log, "StartDownload()", [&] {
        const std::string& folder = p_.State.Run.Day.gDayFolder;
        if (const auto index = p_.Disk.Stamp(folder + std::string(indexFileName)))
            listedAt_ = index->ModifiedNanoseconds;
        for (auto& entry : p_.Disk.Enumerate(folder, ".*.part", Files::Kind::Files))
            leftOver_.push_back(std::move(entry.Name));
    });
}

bool FileTransfer::adownloadFile(const DownloadEntry& entry, const std::string& folder, Attempt attempt) {
    FailureLog log(p_.Log, p_.Feedback);
    return trap(log, "adownloadFile()", false, [&] {
        const std::string path = folder + entry.FileName;
        const std::string partPath = folder + partName(entry.FileName, entry.Change);
        auto part = p_.Disk.OpenPart(partPath);
        if (!part) {
            const auto before = p_.Disk.Stamp(path);
            part = waitForPart(partPath);
            if (!part) return false;
            const bool isNew = p_.Disk.Stamp(path) != before;
            if (isNew && hasSize(entry) && p_.Disk.FileSize(path) == entry.Size)
                return true;  // the other one brought it
        }
        if (!fetch(entry, path, *part) || !take(entry, path, *part, attempt)) return false;
        dropOtherVersions(entry, folder);
        return true;
    });
}

// Null when another program has it for too long, or the user stops the waiting.
std::unique_ptr<PartFile> FileTransfer::waitForPart(const std::string& path) {
    p_.Log.WriteLog("        Another program is fetching this file.");
    const SteadyTime end = p_.Time.Steady() + longestWait;
    std::unique_ptr<PartFile> part;
    while (!part && !p_.State.gStopRequested && p_.Time.Steady() < end) {
        p_.Loop.WaitForEvents(static_cast<int>(waitStep.count()));
        part = p_.Disk.OpenPart(path);
    }
    if (!part) p_.Feedback.failed({Cause::TakenByOther});
    return part;
}

bool FileTransfer::fetch(const DownloadEntry& entry, const std::string& path, PartFile& part) {
    if (!p_.State.Run.Setup.UseHTTP) {
        const std::int64_t offset = startOffset(entry, path, part);
        part.StartAt(offset);
        return p_.Ftp.download(entry.FileName, part, offset, hasSize(entry) ? std::optional{entry.Size} : std::nullopt);
    }
    std::int32_t bytes = 0;
    if (p_.Http.HttpDownloadFile(entry.FileName, path, part, bytes)) return true;
    part.Discard();  // over HTTP nothing is gone on with
    return false;
}

std::int64_t FileTransfer::startOffset(const DownloadEntry& entry, const std::string& path, PartFile& part) {
    if (!hasSize(entry)) return 0;
    const auto isBeginning = [&](std::int64_t length) { return length > 0 && length < entry.Size; };
    if (part.Length() == 0 && !entry.IsOutdated)
        trapStep(p_.Log, "adownloadFile()", [&] {
            const auto file = p_.Disk.Stamp(path);
            if (file && isBeginning(file->Size) && listedAt_ && file->ModifiedNanoseconds > *listedAt_)
                part.Adopt(path);
        });
    return isBeginning(part.Length()) ? part.Length() : 0;
}

// A complete answer has come. Is it the file?
bool FileTransfer::take(const DownloadEntry& entry, const std::string& path, PartFile& part, Attempt attempt) {
    constexpr std::size_t enoughToTell = 512;
    if (isWebPage(part.Beginning(enoughToTell))) {
        p_.Log.WriteLog("        A web page came in place of " + entry.FileName + ".");
        p_.Feedback.failed({Cause::WebPage});
        part.Discard();
        return false;
    }
    const std::int64_t length = part.Length();
    if (!hasSize(entry) || length == entry.Size) {
        part.MoveTo(path);
        return true;
    }
    p_.Log.WriteLog("        " + entry.FileName + " came with " + std::to_string(length) + " bytes, the list says " +
                    std::to_string(entry.Size) + ".");
    p_.Feedback.failed({Cause::WrongLength, std::to_string(length) + "/" + std::to_string(entry.Size)});
    if (attempt == Attempt::Last && !p_.Disk.PathExists(path))
        part.MoveTo(path);
    else if (p_.State.Run.Setup.UseHTTP || length > entry.Size)
        part.Discard();
    return false;
}

void FileTransfer::dropOtherVersions(const DownloadEntry& entry, const std::string& folder) {
    for (const std::string& name : leftOver_) {
        if (!isPartOf(name, entry.FileName)) continue;
        if (const auto other = p_.Disk.OpenPart(folder + name)) other->Discard();
    }
    std::erase_if(leftOver_, [&](const std::string& name) { return isPartOf(name, entry.FileName); });
}

}  // namespace vell
