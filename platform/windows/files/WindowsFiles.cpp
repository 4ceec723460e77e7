// SPDX-License-Identifier: MIT
#include "platform/windows/files/WindowsFiles.h"

#include <algorithm>
#include <chrono>

#include "base/text.h"
#include "platform/common/NamePattern.h"
#include "platform/common/partNames.h"
#include "platform/windows/files/FileHandle.h"
#include "platform/windows/files/FolderReader.h"
#include "platform/windows/files/LeftoverParts.h"
#include "platform/windows/files/WholeFile.h"
#include "platform/windows/files/WindowsPartFile.h"
#include "platform/windows/files/paths.h"
#include "platform/windows/files/replacing.h"
#include "platform/windows/systemText.h"

namespace vell {

namespace {

constexpr std::chrono::hours leftOverAfter{24};
// A writer holds a lock for as long as a small file takes to the disk.
constexpr std::chrono::seconds longestWait{5};
constexpr DWORD betweenLooks = 2;  // milliseconds
// From 1601, where file times begin, to 1970, where 64 bits of nanoseconds do.
constexpr std::int64_t fileTimeOf1970 = 116'444'736'000'000'000;

FilePlace locate(std::string_view path) {
    return {std::string(path), systemPath(path)};
}

std::int64_t joinedHalves(DWORD high, DWORD low) {
    return static_cast<std::int64_t>(std::uint64_t{high} << 32 | low);
}

// Nothing when there is no such file or folder; raises when the attributes cannot be read.
std::optional<WIN32_FILE_ATTRIBUTE_DATA> attributes(std::string_view path) {
    if (!isUsablePath(path)) return std::nullopt;
    const FilePlace place = locate(path);
    WIN32_FILE_ATTRIBUTE_DATA found{};
    if (GetFileAttributesExW(place.System.c_str(), GetFileExInfoStandard, &found)) return found;
    if (isAbsence(GetLastError())) return std::nullopt;
    raiseFileError(place);
}

bool isFolder(const WIN32_FILE_ATTRIBUTE_DATA& found) {
    return (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool comesBefore(const Files::Entry& a, const Files::Entry& b) {
    const int order = compareNoCase(a.Name, b.Name);
    return order != 0 ? order < 0 : a.Name < b.Name;
}

// What nobody is shown, nobody can remove but us. What cannot be removed is told when the folder cannot.
void removeUnseenFiles(const std::wstring& folder) {
    removeLeftoverParts(folder, std::chrono::hours{0});
    FolderReader reader(folder);
    for (FolderReader::Found found; reader.next(found);) {
        const std::string name = utf8FromWide(found.Name);
        if (!found.IsFolder && !isPartName(name) && !codePageFromUtf8(name))
            DeleteFileW(joined(folder, found.Name).c_str());
    }
}

// What is missing is the folder that was named, not a file in it.
[[noreturn]] void raiseFolderError(const FilePlace& place) {
    const DWORD error = GetLastError();
    throw fileError(error == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : error, place);
}

}  // namespace

bool WindowsFiles::PathExists(std::string_view path) const {
    try {
        return attributes(path).has_value();
    } catch (const RunTimeError&) {
        return true;  // whoever uses it is told what is the matter with it
    }
}

std::optional<std::int64_t> WindowsFiles::FileSize(std::string_view path) const {
    const auto found = attributes(path);
    if (!found || isFolder(*found)) return std::nullopt;
    return joinedHalves(found->nFileSizeHigh, found->nFileSizeLow);
}

std::optional<FileStamp> WindowsFiles::Stamp(std::string_view path) const {
    if (!isUsablePath(path)) return std::nullopt;
    const FilePlace place = locate(path);
    FileHandle::How how = FileHandle::ToRead;
    how.Access = FILE_READ_ATTRIBUTES;
    how.Flags = FILE_FLAG_BACKUP_SEMANTICS;  // which a folder wants
    const FileHandle file = FileHandle::tried(place.System, how);
    BY_HANDLE_FILE_INFORMATION status{};
    if (!file.isOpen() && isAbsence(GetLastError())) return std::nullopt;
    if (!file.isOpen() || !GetFileInformationByHandle(file.get(), &status)) raiseFileError(place);
    const auto& modified = status.ftLastWriteTime;
    return FileStamp{joinedHalves(status.nFileSizeHigh, status.nFileSizeLow),
                     (joinedHalves(modified.dwHighDateTime, modified.dwLowDateTime) - fileTimeOf1970) * 100,
                     static_cast<std::uint64_t>(joinedHalves(status.nFileIndexHigh, status.nFileIndexLow))};
}

std::vector<Files::Entry> WindowsFiles::Enumerate(std::string_view folder, std::string_view pattern, Kind kind) const {
    const auto place = locate(folder);
    FolderReader reader(place.System);
    if (reader.error() != 0) {
        if (isAbsence(reader.error())) return {};
        throw fileError(reader.error(), place);
    }
    const NamePattern wanted(pattern);
    const bool wantsParts = pattern.starts_with('.');
    std::vector<Entry> entries;
    for (FolderReader::Found found; reader.next(found);) {
        if (found.IsFolder != (kind == Kind::Folders)) continue;
        const auto name = codePageFromUtf8(utf8FromWide(found.Name));
        if (!name || (isPartName(*name) && !wantsParts) || !wanted.fits(*name)) continue;
        entries.push_back({*name, found.IsFolder ? 0 : found.Size});
    }
    std::ranges::sort(entries, comesBefore);
    return entries;
}

std::string WindowsFiles::ReadFile(std::string_view path) const {
    const auto place = locate(path);
    return FileHandle(place, FileHandle::ToRead).readAll(place);
}

std::string WindowsFiles::ReadPart(std::string_view path, std::int64_t offset, std::size_t most) const {
    const auto place = locate(path);
    return FileHandle(place, FileHandle::ToRead).readAt(offset, most, place);
}

void WindowsFiles::WriteWhole(std::string_view path, std::string_view bytes, Durability durability) {
    const auto place = locate(path);
    clearFolderOf(place);
    WholeFile file(place);
    file.write(bytes);
    file.takePlace(durability);
}

void WindowsFiles::Append(std::string_view path, std::string_view bytes) {
    const auto place = locate(path);
    FileHandle file(place, {GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                            OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL});
    file.writeAt(file.size(place), bytes, place);
}

std::unique_ptr<PartFile> WindowsFiles::OpenPart(std::string_view path) {
    const auto place = locate(path);
    std::unique_ptr<PartFile> part = WindowsPartFile::open(place);
    clearFolderOf(place);  // not before: being open keeps an old part that is to be gone on with
    return part;
}

// An empty part: nobody lists it, and it goes with its owner.
std::unique_ptr<PartFile> WindowsFiles::Lock(std::string_view path) {
    const std::string beside = lockPartOf(path);
    const auto end = std::chrono::steady_clock::now() + longestWait;
    while (true) {
        if (auto part = OpenPart(beside)) return part;
        if (std::chrono::steady_clock::now() > end)
            throw RunTimeError(error_number::PermissionDenied, "Permission denied: " + beside);
        Sleep(betweenLooks);
    }
}

void WindowsFiles::Flush(std::string_view /*folder*/) {}

void WindowsFiles::MakePrivateFile(std::string_view path) {
    makePrivate(locate(path));
}

void WindowsFiles::DeleteFile(std::string_view path) {
    const auto place = locate(path);
    if (!DeleteFileW(place.System.c_str())) raiseFileError(place);
}

void WindowsFiles::MakeFolder(std::string_view path) {
    const auto place = locate(path);
    if (!CreateDirectoryW(place.System.c_str(), nullptr)) raiseFolderError(place);
}

void WindowsFiles::RemoveFolder(std::string_view path) {
    const auto place = locate(path);
    removeUnseenFiles(place.System);
    if (!RemoveDirectoryW(place.System.c_str())) raiseFolderError(place);
}

std::optional<std::uint64_t> WindowsFiles::FreeBytes(std::string_view path) const {
    if (!isUsablePath(path)) return std::nullopt;
    std::wstring place = systemPath(path);
    if (isOnShare(place)) return std::nullopt;
    ULARGE_INTEGER bytes{};
    while (!GetDiskFreeSpaceExW(place.c_str(), &bytes, nullptr, nullptr)) {
        const std::wstring above = folderOf(place);
        if (above == place || !isAbsence(GetLastError())) return std::nullopt;
        place = above;
    }
    return bytes.QuadPart;
}

std::string WindowsFiles::SystemPath(std::string_view path) const {
    return utf8FromWide(plainPath(systemPath(path)));
}

bool WindowsFiles::IsTaken(const std::string& systemPath) const {
    return GetFileAttributesW(systemPathFromUtf8(systemPath).c_str()) != INVALID_FILE_ATTRIBUTES;
}

void WindowsFiles::CopyOut(std::string_view path, const std::string& systemPath) {
    constexpr std::size_t blockSize = std::size_t{1} << 20;
    const auto from = locate(path);
    const FilePlace to{codePageFromUtf8Lossy(systemPath), systemPathFromUtf8(systemPath)};
    const FileHandle source(from, FileHandle::ToRead);
    WholeFile copy(to);
    std::int64_t length = 0;
    for (std::string block; !(block = source.readAt(length, blockSize, from)).empty();) {
        copy.write(block);
        length += std::ssize(block);
    }
    copy.takePlace(Durability::Rename);
}

void WindowsFiles::clearFolderOf(const FilePlace& place) {
    const auto folder = folderOf(place.System);
    if (clearedFolders_.insert(folder).second) removeLeftoverParts(folder, leftOverAfter);
}

}  // namespace vell
