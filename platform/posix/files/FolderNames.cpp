// SPDX-License-Identifier: MIT
#include "platform/posix/files/FolderNames.h"

#include <cstdlib>
#include <ctime>
#include <memory>

#include <sys/stat.h>

#include "base/text.h"
#include "platform/posix/files/FolderReader.h"
#include "platform/posix/files/paths.h"

namespace vell {

namespace {

// A folder that changes twice within one tick of the system's clock (up to 10 ms) shows the same time for both.
constexpr std::int64_t clockTick = 10'000'000;
// How long after a change of ours the folder is not read again. In that time a name that another process makes in the
// very tick of our change can be missed.
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

bool FolderNames::Folder::isTrusted(std::int64_t modified) const {
    if (modified != Modified) return false;
    return std::abs(ScannedAt - Modified) >= clockTick || systemNow() < OwnUntil;
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
    if (HasDoubles) Modified = 0;  // the other one is not known any more
    Names.erase(Upper(codePageFromUtf8(name).value_or(name)));
}

std::string FolderNames::realPath(const std::string& wanted) {
    if (exists(wanted) || wanted == "/" || wanted == ".") return wanted;
    const auto folder = realPath(folderOf(wanted));
    const auto name = nameOf(wanted);
    return joined(folder, findName(folder, name).value_or(name));
}

void FolderNames::adding(const std::string& path, const std::function<void()>& operation) {
    changing(path, operation, [](Folder& folder, const std::string& name) { folder.add(name); });
}

void FolderNames::removing(const std::string& path, const std::function<void()>& operation) {
    changing(path, operation, [this, &path](Folder& folder, const std::string& name) {
        folder.remove(name);
        folders_.erase(path);
    });
}

void FolderNames::moving(const std::string& from, const std::string& to, const std::function<void()>& operation) {
    changing(to, operation, [&from](Folder& folder, const std::string& name) {
        folder.remove(nameOf(from));
        folder.add(name);
    });
}

std::optional<std::string> FolderNames::findName(const std::string& folder, const std::string& name) {
    const auto inCodePage = codePageFromUtf8(name);
    const Folder* known = inCodePage ? namesOf(folder) : nullptr;
    if (known == nullptr) return std::nullopt;
    const auto found = known->Names.find(Upper(*inCodePage));
    return found == known->Names.end() ? std::nullopt : std::optional{found->second};
}

// Null when the folder cannot be read.
FolderNames::Folder* FolderNames::namesOf(const std::string& folder) {
    const auto now = modified(folder);
    if (!now) return nullptr;
    const auto known = folders_.find(folder);
    if (known != folders_.end() && known->second.isTrusted(*now)) return &known->second;

    Folder names{*now, systemNow(), 0, false, {}};
    const FolderReader reader(opendir(folder.c_str()));
    if (!reader) return nullptr;
    while (const dirent* entry = readdir(reader.get()))
        names.add(entry->d_name);
    if (folders_.size() >= mostFolders) folders_.clear();
    return &(folders_[folder] = std::move(names));
}

void FolderNames::changing(const std::string& path, const std::function<void()>& operation,
                           const std::function<void(Folder&, const std::string&)>& note) {
    const auto folder = folderOf(path);
    const auto before = modified(folder);
    operation();
    const auto known = folders_.find(folder);
    if (known == folders_.end() || !before || known->second.Modified != *before) return;
    known->second.Modified = modified(folder).value_or(0);
    known->second.OwnUntil = systemNow() + ownPeriod;
    note(known->second, nameOf(path));
}

}  // namespace vell
