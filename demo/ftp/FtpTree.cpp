// SPDX-License-Identifier: MIT
#include "demo/ftp/FtpTree.h"

#include <algorithm>
#include <chrono>
#include <map>

#include "base/text.h"
#include "demo/days/FileNames.h"

namespace vell::demo {

namespace fs = std::filesystem;

namespace {

bool isArchive(const FtpPath& path) {
    return !path.empty() && equalNoCase(path.front(), FtpTree::ArchiveName);
}

bool isOwnFile(std::string_view name) {
    return equalNoCase(name, ClippingsTree::TableName) || equalNoCase(name, ClippingsTree::AlertName);
}

FtpEntry entryOf(const fs::path& file) {
    std::error_code problem;
    const bool isDirectory = fs::is_directory(file, problem);
    const auto written = std::chrono::file_clock::to_sys(fs::last_write_time(file, problem));
    const auto seconds = std::chrono::floor<std::chrono::seconds>(written.time_since_epoch());
    const auto size = isDirectory ? 0 : fs::file_size(file, problem);
    return {file.filename().string(), isDirectory, problem ? 0 : size, static_cast<std::time_t>(seconds.count())};
}

// What a client may see of a folder on disk.
std::vector<FtpEntry> entriesOf(const fs::path& folder) {
    std::vector<FtpEntry> entries;
    std::error_code problem;
    for (const auto& entry : fs::directory_iterator(folder, problem)) {
        const std::string name = entry.path().filename().string();
        const bool isSimple = entry.is_regular_file(problem) || entry.is_directory(problem);
        if (isSimple && isPlainName(name) && !isOwnFile(name)) entries.push_back(entryOf(entry.path()));
    }
    return entries;
}

bool liesIn(const fs::path& root, const fs::path& place) {
    std::error_code problem;
    const fs::path inside = fs::weakly_canonical(place, problem).lexically_relative(fs::canonical(root, problem));
    return !problem && !inside.empty() && *inside.begin() != "..";
}

}  // namespace

std::string textOf(const FtpPath& path) {
    std::string text;
    for (const auto& part : path)
        text.append("/").append(part);
    return text.empty() ? "/" : text;
}

std::optional<FtpPath> FtpTree::resolve(const FtpPath& current, std::string_view argument) {
    FtpPath path = argument.starts_with('/') ? FtpPath{} : current;
    for (auto part : Split(argument, "/")) {
        if (part.empty() || part == ".") continue;
        if (part == "..") {
            if (!path.empty()) path.pop_back();
        } else if (isPlainName(part)) {
            path.emplace_back(part);
        } else {
            return std::nullopt;
        }
    }
    return path;
}

bool FtpTree::isDirectory(const FtpPath& path) const {
    if (path.empty() || (isArchive(path) && path.size() == 1)) return true;
    const auto place = onDisk(path);
    std::error_code problem;
    return place && fs::is_directory(*place, problem);
}

std::vector<FtpEntry> FtpTree::list(const FtpPath& directory) const {
    std::vector<FtpEntry> entries;
    if (directory.empty())
        entries = top();
    else if (isArchive(directory))
        entries = archive();
    else if (const auto place = onDisk(directory))
        entries = entriesOf(*place);
    std::sort(entries.begin(), entries.end(), [](const FtpEntry& a, const FtpEntry& b) { return a.Name < b.Name; });
    return entries;
}

std::optional<fs::path> FtpTree::file(const FtpPath& path) const {
    if (path.empty()) return std::nullopt;
    if (path.size() == 1 && equalNoCase(path[0], ClippingsTree::AdvertisementName)) return tree_.advertisement();
    if (isArchive(path)) return path.size() == 2 ? archiveFile(path[1]) : std::nullopt;
    const auto place = onDisk(path);
    return place && path.size() > 1 ? fileNamed(place->parent_path(), path.back()) : std::nullopt;
}

std::optional<fs::path> FtpTree::writable(const FtpPath& path) const {
    return path.size() > 1 ? onDisk(path) : std::nullopt;
}

std::optional<fs::path> FtpTree::onDisk(const FtpPath& path) const {
    const bool isKept = Date::fromFolderName(path.front()) || path.front() == ClippingsTree::UploadName;
    if (!isKept || (path.size() > 1 && isOwnFile(path.back()))) return std::nullopt;
    fs::path place = tree_.root();
    for (const auto& part : path)
        place /= part;
    return liesIn(tree_.root(), place) ? std::optional{place} : std::nullopt;
}

std::vector<FtpEntry> FtpTree::top() const {
    std::vector<FtpEntry> entries{entryOf(tree_.root() / ClippingsTree::UploadName)};
    for (const Date& day : tree_.days())
        entries.push_back(entryOf(tree_.dayFolder(day)));
    if (const auto picture = tree_.advertisement()) entries.push_back(entryOf(*picture));
    FtpEntry archived = entryOf(tree_.root());
    archived.Name = ArchiveName;
    entries.push_back(archived);
    return entries;
}

std::vector<FtpEntry> FtpTree::archive() const {
    std::map<std::string, FtpEntry> newest;
    if (const auto picture = tree_.advertisement()) newest.emplace(ClippingsTree::AdvertisementName, entryOf(*picture));
    for (const Date& day : tree_.days())
        for (auto& entry : entriesOf(tree_.dayFolder(day)))
            if (!entry.IsDirectory) newest.try_emplace(Upper(entry.Name), entry);
    std::vector<FtpEntry> entries;
    entries.reserve(newest.size());
    for (auto& named : newest)
        entries.push_back(std::move(named.second));
    return entries;
}

std::optional<fs::path> FtpTree::archiveFile(std::string_view name) const {
    if (equalNoCase(name, ClippingsTree::AdvertisementName)) return tree_.advertisement();
    if (isOwnFile(name)) return std::nullopt;
    for (const Date& day : tree_.days())
        if (auto found = fileNamed(tree_.dayFolder(day), name)) return found;
    return std::nullopt;
}

}  // namespace vell::demo
