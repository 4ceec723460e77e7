// SPDX-License-Identifier: MIT
#include "store/DayIndex.h"

#include <utility>

#include "store/IndexFile.h"
#include "store/IndexLine.h"

namespace vell {

DayIndex::DayIndex(Files& files) : files_(files) {}

int DayIndex::markDownloaded(const std::string& dayFolder, const std::string& pdfName) {
    load(dayFolder + std::string(indexFileName));
    std::vector<std::size_t> changed;
    const auto lines = linesOf_.find(pdfName);
    if (lines == linesOf_.end()) {
        store(changed);
        return 0;
    }
    for (const auto& [begin, length] : lines->second)
        for (const std::size_t place : openMarks(std::string_view(text_).substr(begin, length))) {
            changed.push_back(begin + place);
            text_[changed.back()] = arrivedMark;
        }
    store(changed);
    return static_cast<int>(lines->second.size());
}

// Replacing a file makes the file system write it to the disk at once, which costs more than fetching the clipping.
// Where the file is already as it would be written but for one byte, that byte is all that is written.
void DayIndex::store(const std::vector<std::size_t>& changed) {
    const bool isOnDisk = std::exchange(isOnDisk_, false);  // if writing fails, the text here is not the file's
    if (!isOnDisk || changed.size() > 1)
        files_.WriteWhole(path_, text_, Durability::Rename);
    else if (changed.size() == 1)
        files_.ReplaceByte(path_, static_cast<std::int64_t>(changed[0]), text_[changed[0]]);
    stamp_ = files_.Stamp(path_);
    isOnDisk_ = stamp_.has_value();
}

void DayIndex::load(const std::string& path) {
    if (path == path_ && isOnDisk_ && files_.Stamp(path) == stamp_) return;
    isOnDisk_ = false;
    const std::string content = files_.ReadFile(path);
    path_ = path;
    text_.clear();
    linesOf_.clear();
    for (const std::string_view line : indexLines(content)) {
        if (indexFields(line).size() < 2) continue;
        linesOf_[std::string(indexKey(line))].push_back({text_.size(), line.size()});
        appendIndexLine(text_, line);
    }
    appendIndexLine(text_, "");
}

}  // namespace vell
