// SPDX-License-Identifier: MIT
#include "platform/posix/files/FileHandle.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vell {

namespace {

// Calls again what a signal interrupted.
template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

}  // namespace

FileHandle::FileHandle(const FilePlace& place, int flags, mode_t mode)
    : descriptor_(uninterrupted([&] { return ::open(place.System.c_str(), flags | O_CLOEXEC, mode); })) {
    if (descriptor_ < 0) raiseFileError(place);
}

FileHandle::~FileHandle() {
    if (isOpen()) ::close(descriptor_);
}

FileHandle::FileHandle(FileHandle&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}

FileHandle& FileHandle::operator=(FileHandle&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

void FileHandle::writeAll(std::string_view bytes, const FilePlace& place) {
    while (!bytes.empty()) {
        const auto written = uninterrupted([&] { return ::write(descriptor_, bytes.data(), bytes.size()); });
        if (written < 0) raiseFileError(place);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void FileHandle::writeAllAt(std::int64_t offset, std::string_view bytes, const FilePlace& place) {
    while (!bytes.empty()) {
        const auto written = uninterrupted([&] { return ::pwrite(descriptor_, bytes.data(), bytes.size(), offset); });
        if (written < 0) raiseFileError(place);
        bytes.remove_prefix(static_cast<std::size_t>(written));
        offset += written;
    }
}

bool FileHandle::tryLock() {
    return uninterrupted([&] { return ::flock(descriptor_, LOCK_EX | LOCK_NB); }) == 0 || errno != EWOULDBLOCK;
}

std::string FileHandle::readAll(const FilePlace& place) {
    struct stat status {};
    if (fstat(descriptor_, &status) != 0) raiseFileError(place);
    std::string bytes;
    std::size_t length = 0;
    // One byte more than the file should have tells its end without a second turn.
    for (std::size_t room = static_cast<std::size_t>(status.st_size) + 1;; room = bytes.size()) {
        bytes.resize(bytes.size() + room);
        while (length < bytes.size()) {
            const auto got =
                uninterrupted([&] { return ::read(descriptor_, bytes.data() + length, bytes.size() - length); });
            if (got < 0) raiseFileError(place);
            length += static_cast<std::size_t>(got);
            if (got == 0) {
                bytes.resize(length);
                return bytes;
            }
        }
    }
}

std::string FileHandle::readAt(std::int64_t offset, std::size_t most, const FilePlace& place) const {
    struct stat status {};
    if (fstat(descriptor_, &status) != 0) raiseFileError(place);
    const std::int64_t left = std::max<std::int64_t>(status.st_size - offset, 0);
    std::string bytes(std::min(most, static_cast<std::size_t>(left)), '\0');
    std::size_t length = 0;
    while (length < bytes.size()) {
        const auto got = uninterrupted([&] {
            return ::pread(descriptor_, bytes.data() + length, bytes.size() - length,
                           offset + static_cast<std::int64_t>(length));
        });
        if (got < 0) raiseFileError(place);
        if (got == 0) break;
        length += static_cast<std::size_t>(got);
    }
    bytes.resize(length);
    return bytes;
}

void FileHandle::flushToDisk(const FilePlace& place) {
    // EINVAL: what this is has no disk behind it.
    if (uninterrupted([&] { return ::fsync(descriptor_); }) != 0 && errno != EINVAL) raiseFileError(place);
}

void FileHandle::reportLateErrors(const FilePlace& place) const {
    const int copy = uninterrupted([&] { return ::fcntl(descriptor_, F_DUPFD_CLOEXEC, 0); });
    if (copy < 0) raiseFileError(place);
    FileHandle(copy).close(place);
}

void FileHandle::close(const FilePlace& place) {
    if (!isOpen()) return;
    // After EINTR the descriptor is gone all the same, see close(2).
    if (::close(std::exchange(descriptor_, -1)) != 0 && errno != EINTR) raiseFileError(place);
}

}  // namespace vell
