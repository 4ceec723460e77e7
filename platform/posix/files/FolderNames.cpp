// SPDX-License-Identifier: MIT
#include "platform/posix/files/FolderNames.h"

#include <cstdlib>
#include <ctime>
#include <utility>

#include <sys/stat.h>

#include "base/text.h"
#include "platform/posix/files/FolderReader.h"
#include "platform/posix/files/paths.h"

namespace vell {

namespace {

// A folder that changes twice within one tick of the system's clock (up to 10 ms) shows the same time for both.
constexpr std::int64_t clockTick = 10'000'000;
// For so long after a folder was read, changes of ours are taken for all that happen to it. What another process makes
// meanwhile is found under its exact name only.
constexpr std::int64_t ownPeriod = 1'000'000'000;
// A long life must not remember every folder it has seen.
constexpr std::size_t mostFolders = 64;

std::int64_t nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

std::int64_t systemNow() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return nanoseconds(now);
}

std::optional<std::int64_t> modified(const std::string& folder) {
    struct stat status {};
    if (stat(folder.c_str(), &status) != 0) return std::nullopt;
    return nanoseconds(status.st_mtim);
}

bool exists(const std::string& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

}  // namespace

bool FolderNames::Folder::isOurs(std::int64_t now) const {
    return IsOurWork && std::abs(now - ReadAt) < ownPeriod;
}

bool FolderNames::Folder::isUnchanged(std::int64_t modified) const {
    return modified == Modified && std::abs(ReadAt - Modified) >= clockTick;
}

const std::string* FolderNames::Folder::find(const std::string& name) const {
    const auto inCodePage = codePageFromUtf8(name);
    if (!inCodePage) return nullptr;
    const auto found = Names.find(Upper(*inCodePage));
    return found == Names.end() ? nullptr : &found->second;
}

void FolderNames::Folder::add(const std::string& name) {
    const auto inCodePage = codePageFromUtf8(name);
    if (!inCodePage) return;  // no path of the program can mean it
    const auto [known, isNew] = Names.emplace(Upper(*inCodePage), name);
    if (isNew || known->second == name) return;
    HasDoubles = true;
    if (name < known->second) known->second = name;  // whatever order the system lists them in
}

void FolderNames::Folder::remove(const std::string& name) {
    if (HasDoubles) *this = {};  // the other one is not known any more
    Names.erase(Upper(codePageFromUtf8(name).value_or(name)));
}

std::string FolderNames::realPath(const std::string& wanted) {
    if (wanted == "/" || wanted == ".") return wanted;
    if (const Folder* ours = ourFolder(folderOf(wanted))) {
        const std::string name = nameOf(wanted);
        const std::string* known = ours->find(name);
        if (known == nullptr || *known == name) return wanted;
    }
    return exists(wanted) ? wanted : otherCaseOf(wanted);
}

std::string FolderNames::otherCaseOf(const std::string& wanted) {
    if (wanted == "/" || wanted == ".") return wanted;
    const std::string asWanted = folderOf(wanted);
    const std::string folder = ourFolder(asWanted) != nullptr ? asWanted : realPath(asWanted);
    const std::string name = nameOf(wanted);
    const Folder* known = namesOf(folder);
    const std::string* found = known != nullptr ? known->find(name) : nullptr;
    return joined(folder, found != nullptr ? *found : name);
}

void FolderNames::added(const std::string& path) {
    changed(path, [&](Folder& folder) { folder.add(nameOf(path)); });
}

void FolderNames::removed(const std::string& path) {
    changed(path, [&](Folder& folder) { folder.remove(nameOf(path)); });
    folders_.erase(path);
}

void FolderNames::moved(const std::string& from, const std::string& to) {
    changed(to, [&](Folder& folder) {
        folder.remove(nameOf(from));
        folder.add(nameOf(to));
    });
}

const FolderNames::Folder* FolderNames::ourFolder(const std::string& folder) const {
    const auto known = folders_.find(folder);
    return known != folders_.end() && known->second.isOurs(systemNow()) ? &known->second : nullptr;
}

// Null when the folder cannot be read.
const FolderNames::Folder* FolderNames::namesOf(const std::string& folder) {
    if (const Folder* ours = ourFolder(folder)) return ours;
    const auto now = modified(folder);
    if (!now) return nullptr;
    const auto known = folders_.find(folder);
    if (known != folders_.end() && known->second.isUnchanged(*now)) return &known->second;

    Folder names;
    names.Modified = *now;
    names.ReadAt = systemNow();
    const FolderReader reader(opendir(folder.c_str()));
    if (!reader) return nullptr;
    while (const dirent* entry = readdir(reader.get()))
        names.add(entry->d_name);
    if (folders_.size() >= mostFolders) folders_.clear();
    return &(folders_[folder] = std::move(names));
}

template <class Note>
void FolderNames::changed(const std::string& path, Note&& note) {
    const auto known = folders_.find(folderOf(path));
    if (known == folders_.end()) return;
    known->second.IsOurWork = true;
    note(known->second);
}

}  // namespace vell
