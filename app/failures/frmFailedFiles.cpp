// SPDX-License-Identifier: MIT
#include "app/failures/frmFailedFiles.h"

#include <map>
#include <utility>

#include "app/failures/FailedFiles.h"
#include "app/failures/failureText.h"
#include "base/errors.h"
#include "platform/Files.h"
#include "store/IndexFile.h"

namespace vell {

namespace {

// What the clipping's files are called, without their endings.
std::string baseName(std::string_view fileName) {
    return std::string(fileName.substr(0, fileName.find_last_of('.')));
}

// By day and base name.
using Titles = std::map<std::pair<Date, std::string>, std::string>;

void readTitles(Titles& titles, const Date& day, const Files& disk, const std::string& dayFolder) {
    const std::string path = dayFolder + std::string(indexFileName);
    if (!disk.PathExists(path)) return;
    for (IndexRecord& record : readIndex(disk.ReadFile(path)))
        titles.emplace(std::pair(day, baseName(record.FileName)), std::move(record.Description));
}

}  // namespace

frmFailedFiles::frmFailedFiles(const FailedFiles& failed, const Files& disk, const std::string& downloadFolder,
                               const Translations& words, ErrorLog& log)
    : files_(failed.all()) {
    Titles titles;
    const Date* lastRead = nullptr;
    for (const FailedFile& file : files_) {
        if (lastRead == nullptr || *lastRead != file.Day)
            trapStep(log, "frmFailedFiles()",
                     [&] { readTitles(titles, file.Day, disk, downloadFolder + "\\" + file.Day.folderName() + "\\"); });
        lastRead = &file.Day;
        const auto title = titles.find({file.Day, baseName(file.Name)});
        rows_.push_back(
            {file.Day.dayName(), title == titles.end() ? "" : title->second, file.Name, failureText(file.Why, words)});
    }
}

std::vector<FailedFile> frmFailedFiles::filesOf(const std::vector<std::size_t>& chosen) const {
    if (chosen.empty()) return files_;
    std::vector<FailedFile> files;
    files.reserve(chosen.size());
    for (const std::size_t row : chosen)
        files.push_back(files_.at(row));
    return files;
}

}  // namespace vell
