// SPDX-License-Identifier: MIT
#include "platform/windows/files/FileHandle.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

namespace vell {

namespace {

constexpr std::size_t mostAtOnce = std::size_t{1} << 26;
// Those who look at every new file, as virus scanners do, have it open for a moment.
constexpr int moveAttempts = 10;
constexpr DWORD betweenAttempts = 20;

OVERLAPPED at(std::int64_t offset) {
    OVERLAPPED place{};
    place.Offset = static_cast<DWORD>(offset & 0xFFFFFFFF);
    place.OffsetHigh = static_cast<DWORD>(offset >> 32);
    return place;
}

// FILE_RENAME_INFO with the name behind it.
std::vector<std::byte> renameTo(const std::wstring& path) {
    const std::size_t nameBytes = path.size() * sizeof(wchar_t);
    std::vector<std::byte> bytes(sizeof(FILE_RENAME_INFO) + nameBytes);
    FILE_RENAME_INFO info{};
    info.ReplaceIfExists = TRUE;
    info.FileNameLength = static_cast<DWORD>(nameBytes);
    std::memcpy(bytes.data(), &info, sizeof info);
    std::memcpy(bytes.data() + offsetof(FILE_RENAME_INFO, FileName), path.data(), nameBytes);
    return bytes;
}

bool isMomentary(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
}

}  // namespace

const FileHandle::How FileHandle::ToRead{GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                         OPEN_EXISTING};

FileHandle FileHandle::tried(const std::wstring& systemPath, const How& how) {
    const HANDLE opened =
        CreateFileW(systemPath.c_str(), how.Access, how.Others, nullptr, how.Creation, how.Flags, nullptr);
    return FileHandle(opened == INVALID_HANDLE_VALUE ? nullptr : opened);
}

FileHandle::FileHandle(const FilePlace& place, const How& how) : FileHandle(tried(place.System, how)) {
    if (!isOpen()) raiseFileError(place);
}

FileHandle::~FileHandle() {
    close();
}

FileHandle::FileHandle(FileHandle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}

FileHandle& FileHandle::operator=(FileHandle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
}

std::int64_t FileHandle::size(const FilePlace& place) const {
    LARGE_INTEGER length{};
    if (!GetFileSizeEx(handle_, &length)) raiseFileError(place);
    return length.QuadPart;
}

void FileHandle::writeAt(std::int64_t offset, std::string_view bytes, const FilePlace& place) {
    while (!bytes.empty()) {
        OVERLAPPED where = at(offset);
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min(bytes.size(), mostAtOnce));
        if (!::WriteFile(handle_, bytes.data(), count, &written, &where)) raiseFileError(place);
        bytes.remove_prefix(written);
        offset += written;
    }
}

std::string FileHandle::readAt(std::int64_t offset, std::size_t most, const FilePlace& place) const {
    const auto left = static_cast<std::size_t>(std::max<std::int64_t>(size(place) - offset, 0));
    std::string bytes(std::min(most, left), '\0');
    std::size_t length = 0;
    while (length < bytes.size()) {
        OVERLAPPED where = at(offset + static_cast<std::int64_t>(length));
        DWORD got = 0;
        const auto count = static_cast<DWORD>(std::min(bytes.size() - length, mostAtOnce));
        if (!::ReadFile(handle_, bytes.data() + length, count, &got, &where) && GetLastError() != ERROR_HANDLE_EOF)
            raiseFileError(place);
        if (got == 0) break;
        length += got;
    }
    bytes.resize(length);
    return bytes;
}

std::string FileHandle::readAll(const FilePlace& place) const {
    return readAt(0, static_cast<std::size_t>(size(place)), place);
}

void FileHandle::cutTo(std::int64_t length, const FilePlace& place) {
    FILE_END_OF_FILE_INFO end{};
    end.EndOfFile.QuadPart = length;
    if (!SetFileInformationByHandle(handle_, FileEndOfFileInfo, &end, sizeof end)) raiseFileError(place);
}

void FileHandle::flushToDisk(const FilePlace& place) {
    if (!FlushFileBuffers(handle_)) raiseFileError(place);
}

void FileHandle::moveTo(const FilePlace& target) {
    std::vector<std::byte> info = renameTo(target.System);
    for (int attempt = 1;; ++attempt) {
        if (SetFileInformationByHandle(handle_, FileRenameInfo, info.data(), static_cast<DWORD>(info.size()))) return;
        if (!isMomentary(GetLastError()) || attempt == moveAttempts) raiseFileError(target);
        Sleep(betweenAttempts);
    }
}

void FileHandle::markDeleted(const FilePlace& place) {
    FILE_DISPOSITION_INFO gone{TRUE};
    if (!SetFileInformationByHandle(handle_, FileDispositionInfo, &gone, sizeof gone)) raiseFileError(place);
}

void FileHandle::close() {
    if (isOpen()) CloseHandle(std::exchange(handle_, nullptr));
}

}  // namespace vell
