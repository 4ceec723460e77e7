// SPDX-License-Identifier: MIT
#include "platform/posix/files/PosixPartFile.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/files/PosixFiles.h"
#include "platform/posix/files/replacing.h"

namespace vell {

namespace {

// Neither behind a link nor, as its status then tells, anything but a file.
FileHandle openFile(const FilePlace& place, int flags) {
    return {place, O_RDWR | O_NOFOLLOW | O_NONBLOCK | flags, 0666};
}

struct stat statusOfFile(const FileHandle& file, const FilePlace& place) {
    struct stat status {};
    if (fstat(file.get(), &status) != 0) raiseFileError(place);
    if (!S_ISREG(status.st_mode)) throw fileError(EEXIST, place);
    return status;
}

// Who had the lock before may have moved or removed what was opened meanwhile.
bool isStillThere(const struct stat& opened, const FilePlace& place) {
    struct stat now {};
    return lstat(place.System.c_str(), &now) == 0 && now.st_ino == opened.st_ino && now.st_dev == opened.st_dev;
}

// Another name means the same file, whose bytes are not ours to change: a part of that kind gives way to a new one.
bool isShared(const struct stat& opened) {
    return opened.st_nlink > 1;
}

// A share of the other system's kind refuses to open what is in use there.
bool isInUse(const RunTimeError& error) {
    return error.LastSystemError == EBUSY || error.LastSystemError == ETXTBSY;
}

}  // namespace

std::unique_ptr<PosixPartFile> PosixPartFile::open(PosixFiles& files, const FilePlace& place) {
    try {
        while (true) {
            FileHandle file = openFile(place, O_CREAT);
            if (!file.tryLock()) return nullptr;
            const struct stat opened = statusOfFile(file, place);
            if (isShared(opened)) {
                if (unlink(place.System.c_str()) != 0 && errno != ENOENT) raiseFileError(place);
            } else if (isStillThere(opened, place)) {
                return std::make_unique<PosixPartFile>(files, std::move(file), place, opened.st_size);
            }
        }
    } catch (const RunTimeError& error) {
        if (isInUse(error)) return nullptr;
        throw;
    }
}

PosixPartFile::PosixPartFile(PosixFiles& files, FileHandle file, FilePlace place, std::int64_t length)
    : files_(files), file_(std::move(file)), place_(std::move(place)), length_(length) {}

PosixPartFile::~PosixPartFile() {
    try {
        if (file_.isOpen() && length_ == 0) Discard();
    } catch (const RunTimeError&) {
        return;  // an empty part takes no harm, and goes with the left-over ones
    }
}

std::string PosixPartFile::Beginning(std::size_t most) const {
    std::string bytes(most, '\0');
    const auto got = pread(file_.get(), bytes.data(), bytes.size(), 0);
    if (got < 0) raiseFileError(place_);
    bytes.resize(static_cast<std::size_t>(got));
    return bytes;
}

void PosixPartFile::StartAt(std::int64_t offset) {
    if (offset < 0 || offset > length_) throw RunTimeError(error_number::InvalidCall, "Invalid procedure call");
    if (offset < length_) cutTo(offset);
}

void PosixPartFile::cutTo(std::int64_t length) {
    if (ftruncate(file_.get(), length) != 0) raiseFileError(place_);
    length_ = length;
}

void PosixPartFile::Write(std::string_view bytes) {
    try {
        file_.writeAllAt(length_, bytes, place_);
    } catch (const RunTimeError&) {
        cutTo(length_);  // without the piece that may have come through
        throw;
    }
    length_ += static_cast<std::int64_t>(bytes.size());
}

void PosixPartFile::Close() {
    if (file_.isOpen()) std::exchange(file_, FileHandle()).close(place_);
}

void PosixPartFile::Adopt(std::string_view path) {
    const FilePlace other = files_.locate(path);
    FileHandle file = openFile(other, 0);
    if (!file.tryLock()) throw fileError(EBUSY, other);
    const struct stat opened = statusOfFile(file, other);
    if (isShared(opened)) throw fileError(EMLINK, other);
    files_.rename(other, place_);
    file_ = std::move(file);
    length_ = opened.st_size;
}

void PosixPartFile::MoveTo(std::string_view path) {
    const FilePlace target = files_.locate(path);
    file_.reportLateErrors(target);
    if (!files_.renameToFree(place_, target)) {
        if (const auto permissions = permissionsToKeep(target)) setPermissions(file_, *permissions, target);
        files_.rename(place_, target);
    }
    Close();
}

void PosixPartFile::Discard() {
    files_.remove(place_);
    Close();
}

}  // namespace vell
