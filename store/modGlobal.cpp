// SPDX-License-Identifier: MIT
#include "store/modGlobal.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <map>
#include <unordered_map>
#include <utility>

#include "base/text.h"
#include "config/Settings.h"
#include "config/modIni.h"
#include "platform/EventLoop.h"
#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "store/ClippingName.h"

namespace vell {

bool modGlobal::CreateDownloadDirPath() {
    return trap(p_.Log, "CreateDownloadDirPath()", false, [&] {
        const std::string path = folderOfDay(p_.Day.gCurrentDate);
        p_.Log.WriteLog("Download directory is '" + path + "'");
        const bool isFile = p_.Disk.FileSize(path).has_value();  // which making the folder then tells
        if (isFile || !PathExists(path)) p_.Disk.MakeFolder(path);
        p_.Day.gDayFolder = path;
        return true;
    });
}

bool modGlobal::PathExists(std::string_view path) const {
    return p_.Disk.PathExists(path);
}

std::vector<std::string> modGlobal::GetLocalDirectories(const std::string& folder, bool includeDotEntries) {
    return trap(p_.Log, "GetLocalDirectories()", std::vector<std::string>{}, [&] {
        std::vector<std::string> names;
        if (includeDotEntries) names = {".", ".."};
        for (auto& entry : p_.Disk.Enumerate(folder, "*.*", Files::Kind::Folders))
            names.push_back(std::move(entry.Name));
        return names;
    });
}

CFtpFiles modGlobal::GetLocalFiles(const std::string& dayFolder, std::span<const std::string> patterns) {
    CFtpFiles files;
    trapStep(p_.Log, "GetLocalFiles()", [&] {
        for (std::size_t i = 0; i + 1 < patterns.size(); ++i)
            addMatches(files, dayFolder, patterns[i]);
        joinIndex(files, dayFolder);
    });
    return files;
}

void modGlobal::addMatches(CFtpFiles& files, const std::string& dayFolder, const std::string& pattern) const {
    for (auto& entry : p_.Disk.Enumerate(dayFolder, pattern, Files::Kind::Files)) {
        auto file = std::make_shared<CFtpFile>();
        file->FileName = std::move(entry.Name);
        file->FilePath = dayFolder;
        file->FileSize =
            static_cast<std::int32_t>(std::min<std::int64_t>(entry.Size, std::numeric_limits<std::int32_t>::max()));
        files.add(std::move(file));
    }
}

void modGlobal::joinIndex(CFtpFiles& files, const std::string& dayFolder) const {
    const std::string path = dayFolder + std::string(indexFileName);
    if (!p_.Disk.PathExists(path)) return;
    const auto table = readIndex(p_.Disk.ReadFile(path));
    std::unordered_map<std::string, const IndexRecord*> firstOf;
    firstOf.reserve(table.size());
    for (const IndexRecord& record : table)
        firstOf.emplace(Upper(record.FileName), &record);
    for (const auto& file : files) {
        const auto match = firstOf.find(Upper(file->FileName));
        if (match == firstOf.end()) continue;
        file->NewspaperName = match->second->NewspaperName;
        file->Description = match->second->Description;
        file->Category = match->second->Category;
        file->ArticleType = match->second->ArticleType;
    }
}

DayCount modGlobal::CountDay(const Date& day) const {
    return trap(p_.Log, "CountDay()", DayCount{}, [&] {
        const std::string folder = folderOfDay(day);
        const auto clippings = p_.Disk.Enumerate(folder, "*.PDF", Files::Kind::Files);
        DayCount count{clippings.size(), 0};
        withMarksOf(folder, [&] {
            count.Unread = static_cast<std::size_t>(std::ranges::count_if(
                clippings, [&](const Files::Entry& clipping) { return !IsFileOpened(folder + clipping.Name); }));
        });
        return count;
    });
}

std::vector<Date> modGlobal::DateSort(std::vector<Date> days) {
    trapStep(p_.Log, "DateSort()", [&] { std::ranges::sort(days, std::greater{}); });
    return days;
}

std::string modGlobal::folderOfDay(const Date& day) const {
    if (!day.isReal()) throw RunTimeError(error_number::PathNotFound, "Path not found: no day '" + day.dayName() + "'");
    if (Trim(p_.Setup.LocalDir).empty())
        throw RunTimeError(error_number::PathNotFound, "Path not found: no download folder is set");
    return p_.Setup.LocalDir + "\\" + day.folderName() + "\\";
}

void modGlobal::DeleteContent(const Date& day) {
    bool again = true;
    while (again) {
        again = false;
        try {
            const std::string folder = folderOfDay(day);
            for (const auto& entry : p_.Disk.Enumerate(folder, "*.*", Files::Kind::Files))
                p_.Disk.DeleteFile(folder + entry.Name);
            p_.Loop.DoEvents();
            p_.Disk.RemoveFolder(folder);
            p_.Loop.DoEvents();
        } catch (...) {
            const RunTimeError error = currentError();
            again = p_.Boxes.Show(
                        "Cannot delete one or more files. There has been a sharing violation. Make sure no files are "
                        "in use.",
                        "Sharing Violation", Buttons::RetryCancel, BoxIcon::None) == Answer::Retry;
            p_.Log.LogError(error, "DeleteContent()");
        }
    }
}

void modGlobal::DeleteArticleFiles(const std::string& fileName) {
    deleteFromSelectedDay(clippingForms(fileName), "DeleteArticleFiles()");
}

void modGlobal::DeleteDayFile(const std::string& fileName) {
    deleteFromSelectedDay(std::span(&fileName, 1), "DeleteDayFile()");
}

void modGlobal::deleteFromSelectedDay(std::span<const std::string> fileNames, std::string_view procedure) {
    std::string path;
    try {
        const std::string folder = folderOfDay(p_.Day.cmbDate.value_or(Date{}));
        for (const std::string& name : fileNames) {
            path = folder + name;
            if (!p_.Disk.PathExists(path)) continue;
            p_.Disk.DeleteFile(path);
            p_.Log.WriteLog("        Deleted " + path);
        }
    } catch (...) {
        p_.Log.LogError(currentError(), procedure);
        // Without a path nothing was chosen and nothing was there to delete.
        if (!path.empty())
            p_.Boxes.Show("Cannot delete " + path + ". Make sure it's not in use.", programCaption, Buttons::Ok,
                          BoxIcon::None);
    }
}

namespace {

// A file's name as a key: what would end the key, or make its line a comment or a section, is written as a character
// that no clipping's name has.
std::string markKey(std::string_view name) {
    std::string key = Replace(name, "=", "|");
    if (key.starts_with(';')) key.front() = '<';
    if (key.starts_with('[')) key.front() = '>';
    return key;
}

}  // namespace

std::optional<modGlobal::MarkPlace> modGlobal::placeOf(const Mark& mark, std::string_view path) {
    path = Trim(path);
    const std::size_t backslash = InStrRev(path, "\\");
    if (backslash == 0) return std::nullopt;
    return MarkPlace{std::string(Left(path, backslash)).append(mark.File), markKey(Mid(path, backslash + 1))};
}

bool modGlobal::setMark(const Mark& mark, std::string_view path) {
    return trap(p_.Log, mark.Procedure, false, [&] {
        const auto place = placeOf(mark, path);
        return place && p_.Ini.IniWriteString(place->File, mark.Section, place->Key, "1");
    });
}

bool modGlobal::hasMark(const Mark& mark, std::string_view path) const {
    return trap(p_.Log, mark.Procedure, false, [&] {
        const auto place = placeOf(mark, path);
        std::string value;
        return place && p_.Ini.IniReadString(place->File, mark.Section, place->Key, value) && Trim(value) == "1";
    });
}

bool modGlobal::markOpened(std::span<const std::string> paths, bool opened) {
    return trap(p_.Log, openedMark.Procedure, false, [&] {
        std::map<std::string, std::vector<IniEdit>> edits;  // of each day's marks
        for (const std::string& path : paths)
            if (const auto place = placeOf(openedMark, path); place && IsFileOpened(path) != opened)
                edits[place->File].push_back({std::string(openedMark.Section), place->Key, opened ? "1" : "0"});
        bool all = true;
        for (const auto& [file, marks] : edits)
            all = p_.Ini.IniWriteStrings(file, marks) && all;
        return all;
    });
}

bool modGlobal::MarkFileOpened(std::string_view path) {
    return setMark(openedMark, path);
}
bool modGlobal::MarkFilePrinted(std::string_view path) {
    return setMark(printedMark, path);
}
bool modGlobal::IsFileOpened(std::string_view path) const {
    return hasMark({openedFileName, "VIEW", "IsFileOpened()"}, path);
}
bool modGlobal::IsFilePrinted(std::string_view path) const {
    return hasMark({printedFileName, "PRINT", "IsFilePrinted()"}, path);
}

// Marks that cannot be read are asked for all the same, so that each clipping's failure is told as ever.
void modGlobal::withMarksOf(const std::string& dayFolder, const std::function<void()>& asks) const {
    bool asked = false;
    const auto ask = [&] {
        asked = true;
        asks();
    };
    const std::string opened = std::string(dayFolder).append(openedFileName);
    const std::string printed = std::string(dayFolder).append(printedFileName);
    p_.Ini.readAtOnce(opened, [&] { p_.Ini.readAtOnce(printed, ask); });
    if (!asked) asks();
}

}  // namespace vell
