// SPDX-License-Identifier: MIT
#include "platform/windows/files/WindowsPartFile.h"

#include <utility>

#include "platform/windows/files/paths.h"
#include "platform/windows/files/replacing.h"

namespace vell {

namespace {

// Not behind a link.
FileHandle openAlone(const FilePlace& place, std::uint32_t creation) {
    return FileHandle::tried(place.System, {GENERIC_READ | GENERIC_WRITE | DELETE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                                            creation, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT});
}

BY_HANDLE_FILE_INFORMATION statusOf(const FileHandle& file, const FilePlace& place) {
    BY_HANDLE_FILE_INFORMATION status{};
    if (!GetFileInformationByHandle(file.get(), &status)) raiseFileError(place);
    if ((status.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) throw fileError(ERROR_ALREADY_EXISTS, place);
    return status;
}

// Another name means the same file, whose bytes are not ours to change.
bool isShared(const FileHandle& file, const FilePlace& place) {
    return statusOf(file, place).nNumberOfLinks > 1;
}

// One that is on its way out, its last owner about to close it, is refused without a word of being in use.
bool isGoing(DWORD error, const FilePlace& place) {
    return error == ERROR_ACCESS_DENIED && GetFileAttributesW(place.System.c_str()) == INVALID_FILE_ATTRIBUTES;
}

}  // namespace

std::unique_ptr<WindowsPartFile> WindowsPartFile::open(const FilePlace& place) {
    while (true) {
        FileHandle file = openAlone(place, OPEN_ALWAYS);
        if (!file.isOpen()) {
            const DWORD error = GetLastError();
            if (error == ERROR_SHARING_VIOLATION || isGoing(error, place)) return nullptr;
            throw fileError(error, place);
        }
        if (!isShared(file, place)) return std::make_unique<WindowsPartFile>(std::move(file), place);
        file.markDeleted(place);
    }
}

WindowsPartFile::WindowsPartFile(FileHandle file, FilePlace place)
    : file_(std::move(file)), place_(std::move(place)), length_(file_.size(place_)) {}

WindowsPartFile::~WindowsPartFile() {
    try {
        if (file_.isOpen() && length_ == 0) Discard();
    } catch (const RunTimeError&) {
        return;  // an empty part takes no harm, and goes with the left-over ones
    }
}

std::string WindowsPartFile::Beginning(std::size_t most) const {
    return file_.readAt(0, most, place_);
}

void WindowsPartFile::StartAt(std::int64_t offset) {
    if (offset < 0 || offset > length_) throw RunTimeError(error_number::InvalidCall, "Invalid procedure call");
    if (offset < length_) cutTo(offset);
}

void WindowsPartFile::cutTo(std::int64_t length) {
    file_.cutTo(length, place_);
    length_ = length;
}

void WindowsPartFile::Write(std::string_view bytes) {
    try {
        file_.writeAt(length_, bytes, place_);
    } catch (const RunTimeError&) {
        cutTo(length_);  // without the piece that may have come through
        throw;
    }
    length_ += static_cast<std::int64_t>(bytes.size());
}

void WindowsPartFile::Close() {
    file_.close();
}

void WindowsPartFile::Adopt(std::string_view path) {
    const FilePlace other{std::string(path), systemPath(path)};
    FileHandle file = openAlone(other, OPEN_EXISTING);
    if (!file.isOpen()) raiseFileError(other);
    if (isShared(file, other)) throw fileError(ERROR_TOO_MANY_LINKS, other);
    file_.markDeleted(place_);
    file_.close();
    file.moveTo(place_);
    file_ = std::move(file);
    length_ = file_.size(place_);
}

void WindowsPartFile::MoveTo(std::string_view path) {
    const FilePlace target{std::string(path), systemPath(path)};
    prepareToReplace(target, place_);
    file_.moveTo(target);
    file_.flushToDisk(target);
    Close();
}

void WindowsPartFile::Discard() {
    file_.markDeleted(place_);
    Close();
}

}  // namespace vell
