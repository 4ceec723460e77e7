// SPDX-License-Identifier: MIT
#include "platform/posix/files/PosixFiles.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include "base/text.h"
#include "platform/common/NamePattern.h"
#include "platform/common/partNames.h"
#include "platform/posix/files/FolderReader.h"
#include "platform/posix/files/LeftoverParts.h"
#include "platform/posix/files/PosixPartFile.h"
#include "platform/posix/files/WholeFile.h"
#include "platform/posix/files/paths.h"

namespace vell {

namespace {

constexpr std::chrono::hours leftOverAfter{24};
// A writer holds a lock for as long as a small file takes to the disk.
constexpr std::chrono::seconds longestWait{5};

// False when `entry` is not of that kind. Asks the file itself only where its folder does not tell enough.
bool describe(const FolderReader& folder, const dirent& entry, Files::Kind kind, Files::Entry& description) {
    const bool wantsFolders = kind == Files::Kind::Folders;
    if (entry.d_type == (wantsFolders ? DT_REG : DT_DIR)) return false;
    if (wantsFolders && entry.d_type == DT_DIR) return true;
    struct stat status {};
    if (fstatat(dirfd(folder.get()), entry.d_name, &status, 0) != 0) return false;  // gone meanwhile
    if (wantsFolders) return S_ISDIR(status.st_mode);
    description.Size = status.st_size;
    return S_ISREG(status.st_mode);
}

// What nobody is shown, nobody can remove but us. What cannot be removed is told when the folder cannot.
void removeUnseenFiles(const std::string& folder) {
    removeLeftoverParts(folder, std::chrono::hours{0});
    const FolderReader reader(opendir(folder.c_str()));
    while (const dirent* found = reader ? readdir(reader.get()) : nullptr) {
        const std::string_view name = found->d_name;
        Files::Entry entry;
        if (found->d_type == DT_DIR || isPartName(name)) continue;
        if (codePageFromUtf8(name) && describe(reader, *found, Files::Kind::Files, entry)) continue;
        (void)unlinkat(dirfd(reader.get()), found->d_name, 0);
    }
}

bool comesBefore(const Files::Entry& a, const Files::Entry& b) {
    const int order = compareNoCase(a.Name, b.Name);
    return order != 0 ? order < 0 : a.Name < b.Name;
}

// A pipe in the place of a file is refused, and nobody waits for its reader.
FileHandle openToWrite(const FilePlace& place, int flags) {
    FileHandle file(place, O_WRONLY | O_NONBLOCK | flags, 0666);
    struct stat found {};
    if (fstat(file.get(), &found) != 0) raiseFileError(place);
    if (S_ISFIFO(found.st_mode)) throw fileError(EEXIST, place);
    return file;
}

// Nobody need write to a pipe of that name for us to see that it is none of ours.
FileHandle openToRead(const FilePlace& place) {
    FileHandle file(place, O_RDONLY | O_NONBLOCK);
    struct stat found {};
    if (fstat(file.get(), &found) != 0) raiseFileError(place);
    if (!S_ISREG(found.st_mode)) throw fileError(EISDIR, place);
    return file;
}

// A link stays what it is: the file behind it is written.
std::string behindLink(const std::string& path) {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return path;
    const std::unique_ptr<char, decltype(&std::free)> target(realpath(path.c_str(), nullptr), &std::free);
    return target ? target.get() : path;
}

}  // namespace

bool PosixFiles::PathExists(std::string_view path) const {
    try {
        return status(path).has_value();
    } catch (const RunTimeError&) {
        return true;  // whoever uses it is told what is the matter with it
    }
}

std::optional<std::int64_t> PosixFiles::FileSize(std::string_view path) const {
    const auto found = status(path);
    return found && !S_ISDIR(found->st_mode) ? std::optional{std::int64_t{found->st_size}} : std::nullopt;
}

std::optional<FileStamp> PosixFiles::Stamp(std::string_view path) const {
    const auto found = status(path);
    if (!found) return std::nullopt;
    const auto& modified = found->st_mtim;
    return FileStamp{found->st_size, std::int64_t{modified.tv_sec} * 1'000'000'000 + modified.tv_nsec, found->st_ino};
}

std::vector<Files::Entry> PosixFiles::Enumerate(std::string_view folder, std::string_view pattern, Kind kind) const {
    const auto place = locate(folder);
    const FolderReader reader(opendir(place.System.c_str()));
    if (!reader) {
        if (errno == ENOENT || errno == ENOTDIR) return {};
        raiseFileError(place);
    }
    const NamePattern wanted(pattern);
    const bool wantsParts = pattern.starts_with('.');
    std::vector<Entry> entries;
    while (const dirent* found = readdir(reader.get())) {
        const std::string_view name = found->d_name;
        if (name == "." || name == ".." || (isPartName(name) && !wantsParts)) continue;
        const auto inCodePage = codePageFromUtf8(name);
        if (!inCodePage || !wanted.fits(*inCodePage)) continue;
        Entry entry{*inCodePage, 0};
        if (describe(reader, *found, kind, entry)) entries.push_back(std::move(entry));
    }
    std::ranges::sort(entries, comesBefore);
    return entries;
}

std::string PosixFiles::ReadFile(std::string_view path) const {
    const auto place = locate(path);
    return openToRead(place).readAll(place);
}

std::string PosixFiles::ReadPart(std::string_view path, std::int64_t offset, std::size_t most) const {
    const auto place = locate(path);
    return openToRead(place).readAt(offset, most, place);
}

void PosixFiles::WriteWhole(std::string_view path, std::string_view bytes, Durability durability) {
    auto place = locate(path);
    place.System = behindLink(place.System);
    clearFolderOf(place);
    WholeFile file(place);
    file.write(bytes, durability);
    file.takePlace(durability);
    names_.added(place.System);
}

void PosixFiles::Append(std::string_view path, std::string_view bytes) {
    const auto place = locate(path);
    FileHandle file = openToWrite(place, O_APPEND | O_CREAT);
    names_.added(place.System);
    file.writeAll(bytes, place);
    file.close(place);
}

std::unique_ptr<PartFile> PosixFiles::OpenPart(std::string_view path) {
    const auto place = locate(path);
    std::unique_ptr<PartFile> part = PosixPartFile::open(*this, place);
    names_.added(place.System);
    clearFolderOf(place);  // not before: its lock keeps an old part that is to be gone on with
    return part;
}

// An empty part: nobody lists it, and it goes with its owner, however that ends.
std::unique_ptr<PartFile> PosixFiles::Lock(std::string_view path) {
    const std::string beside = lockPartOf(path);
    const auto end = std::chrono::steady_clock::now() + longestWait;
    while (true) {
        if (auto part = OpenPart(beside)) return part;
        if (std::chrono::steady_clock::now() > end)
            throw RunTimeError(error_number::PermissionDenied, "Permission denied: " + beside);
        std::this_thread::sleep_for(std::chrono::milliseconds{2});
    }
}

void PosixFiles::Flush(std::string_view folder) {
    const auto place = locate(folder);
    const FileHandle handle(place, O_RDONLY | O_DIRECTORY);
    // One call for all that lies there; asking for each file would cost a wait each.
    if (syncfs(handle.get()) != 0) raiseFileError(place);
}

void PosixFiles::MakePrivateFile(std::string_view path) {
    const auto place = locate(path);
    if (PathExists(path)) return;
    FileHandle(place, O_WRONLY | O_CREAT, 0600).close(place);
    names_.added(place.System);
}

void PosixFiles::DeleteFile(std::string_view path) {
    remove(locate(path));
}

void PosixFiles::remove(const FilePlace& place) {
    if (unlink(place.System.c_str()) != 0) raiseFileError(place);
    names_.removed(place.System);
}

void PosixFiles::MakeFolder(std::string_view path) {
    const auto place = locate(path);
    // The folder that is missing is the one that it shall lie in.
    if (mkdir(place.System.c_str(), 0777) != 0) throw fileError(errno == ENOENT ? ENOTDIR : errno, place);
    names_.added(place.System);
}

void PosixFiles::RemoveFolder(std::string_view path) {
    const auto place = locate(path);
    removeUnseenFiles(place.System);
    if (rmdir(place.System.c_str()) != 0) throw fileError(errno == ENOENT ? ENOTDIR : errno, place);
    names_.removed(place.System);
}

std::optional<std::uint64_t> PosixFiles::FreeBytes(std::string_view path) const {
    if (!isUsablePath(path)) return std::nullopt;
    struct statvfs drive {};
    const auto isAnswered = [&](const std::string& place) { return statvfs(place.c_str(), &drive) == 0; };
    std::string system = systemPath(path);
    if (!isAnswered(system))
        for (system = SystemPath(path); !isAnswered(system); system = folderOf(system))
            if ((errno != ENOENT && errno != ENOTDIR) || system == "/" || system == ".") return std::nullopt;
    return std::uint64_t{drive.f_bavail} * drive.f_frsize;
}

std::string PosixFiles::SystemPath(std::string_view path) const {
    return names_.realPath(systemPath(path));
}

bool PosixFiles::IsTaken(const std::string& systemPath) const {
    struct stat found {};
    return lstat(systemPath.c_str(), &found) == 0;
}

void PosixFiles::CopyOut(std::string_view path, const std::string& systemPath) {
    const auto from = locate(path);
    const FilePlace to{codePageFromUtf8Lossy(systemPath), behindLink(systemPath)};
    constexpr std::size_t blockSize = std::size_t{1} << 20;
    FileHandle source = openToRead(from);
    WholeFile copy(to);
    std::int64_t length = 0;
    for (std::string block; !(block = source.readAt(length, blockSize, from)).empty();) {
        copy.write(block, Durability::Rename);
        length += std::ssize(block);
    }
    copy.takePlace(Durability::Rename);
}

void PosixFiles::rename(const FilePlace& from, const FilePlace& to) {
    if (std::rename(from.System.c_str(), to.System.c_str()) != 0) raiseFileError(to);
    names_.moved(from.System, to.System);
}

bool PosixFiles::renameToFree(const FilePlace& from, const FilePlace& to) {
    if (::renameat2(AT_FDCWD, from.System.c_str(), AT_FDCWD, to.System.c_str(), RENAME_NOREPLACE) != 0) return false;
    names_.moved(from.System, to.System);
    return true;
}

FilePlace PosixFiles::locate(std::string_view path) const {
    return {std::string(path), SystemPath(path)};
}

std::optional<struct stat> PosixFiles::status(std::string_view path) const {
    if (!isUsablePath(path)) return std::nullopt;
    struct stat found {};
    FilePlace place{std::string(path), systemPath(path)};
    const auto isThere = [&] { return stat(place.System.c_str(), &found) == 0; };
    const auto isAbsent = [] { return errno == ENOENT || errno == ENOTDIR; };
    if (isThere()) return found;
    if (!isAbsent()) raiseFileError(place);
    const std::string asWanted = std::exchange(place.System, names_.otherCaseOf(place.System));
    if (place.System == asWanted) return std::nullopt;
    if (isThere()) return found;
    if (!isAbsent()) raiseFileError(place);
    return std::nullopt;
}

void PosixFiles::clearFolderOf(const FilePlace& place) {
    const auto folder = folderOf(place.System);
    if (clearedFolders_.insert(folder).second) removeLeftoverParts(folder, leftOverAfter);
}

}  // namespace vell
