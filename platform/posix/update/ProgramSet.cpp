// SPDX-License-Identifier: MIT
#include "platform/posix/update/ProgramSet.h"

#include <cerrno>
#include <filesystem>
#include <set>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include "base/text.h"
#include "platform/posix/files/FileHandle.h"
#include "platform/posix/files/paths.h"

namespace vell {

namespace fs = std::filesystem;

namespace {

// A second name of a file; where the file system knows no such, a copy.
void linkOrCopy(const std::string& from, const std::string& to) {
    if (link(from.c_str(), to.c_str()) == 0) return;
    fs::copy_file(from, to, fs::copy_options::overwrite_existing);
    const FilePlace place{codePageFromUtf8Lossy(to), to};
    FileHandle(place, O_RDONLY).flushToDisk(place);
}

void makeFolderFor(const std::string& file) {
    fs::create_directories(fs::path(file).parent_path());
}

bool isFile(const std::string& path) {
    return fs::is_regular_file(fs::symlink_status(path));
}

void flushFolders(const std::string& root, const std::vector<std::string>& files) {
    std::set<std::string> folders;
    for (const std::string& file : files)
        folders.insert(folderOf(joined(root, file)));
    for (const std::string& folder : folders) {
        const FilePlace place{codePageFromUtf8Lossy(folder), folder};
        if (access(folder.c_str(), F_OK) == 0) FileHandle(place, O_RDONLY | O_DIRECTORY).flushToDisk(place);
    }
}

}  // namespace

ProgramSet::ProgramSet(std::string root, const std::string& work)
    : root_(std::move(root)), staging_(joined(work, "STAGING")), previous_(joined(work, "PREVIOUS")) {}

std::string ProgramSet::placeOf(const std::string& file) const {
    return joined(root_, file);
}

const std::string& ProgramSet::makeStaging() {
    clear();
    fs::create_directory(staging_);
    return staging_;
}

void ProgramSet::keepOld(const std::vector<std::string>& files) {
    fs::create_directory(previous_);
    for (const std::string& file : files) {
        const std::string old = placeOf(file);
        if (fs::symlink_status(old).type() == fs::file_type::not_found) continue;
        if (!isFile(old))
            throw RunTimeError(error_number::FileExists, "This is no file: " + codePageFromUtf8Lossy(old));
        const std::string kept = joined(previous_, file);
        makeFolderFor(kept);
        linkOrCopy(old, kept);
    }
    flushFolders(previous_, files);
    flushFolders(staging_, files);
}

void ProgramSet::moveIn(const std::vector<std::string>& files) {
    for (const std::string& file : files) {
        const std::string from = joined(staging_, file);
        if (!isFile(from)) continue;
        makeFolderFor(placeOf(file));
        fs::rename(from, placeOf(file));
    }
    for (const std::string& file : files)
        if (!isFile(placeOf(file)))
            throw RunTimeError(error_number::FileNotFound,
                               "A file of the new version is missing: " + codePageFromUtf8Lossy(placeOf(file)));
    flushFolders(root_, files);
}

void ProgramSet::putBack(const std::vector<std::string>& files) {
    for (const std::string& file : files) {
        const std::string kept = joined(previous_, file);
        const std::string beside = placeOf(file) + ".old";
        fs::remove(beside);
        if (!isFile(kept)) {
            fs::remove(placeOf(file));
            continue;
        }
        linkOrCopy(kept, beside);
        fs::rename(beside, placeOf(file));
        fs::remove(beside);  // two names of one file are not renamed
    }
    flushFolders(root_, files);
}

void ProgramSet::clear() {
    fs::remove_all(staging_);
    fs::remove_all(previous_);
}

bool ProgramSet::isClear() const {
    return access(staging_.c_str(), F_OK) != 0 && access(previous_.c_str(), F_OK) != 0;
}

}  // namespace vell
