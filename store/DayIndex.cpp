// SPDX-License-Identifier: MIT
#include "store/DayIndex.h"

#include <algorithm>
#include <utility>

#include "store/IndexFile.h"
#include "store/IndexLine.h"

namespace vell {

DayIndex::DayIndex(Files& files) : files_(files) {}

int DayIndex::markDownloaded(const std::string& dayFolder, const std::string& pdfName, std::string_view change) {
    load(dayFolder + std::string(indexFileName));
    const auto isOther = [&](const Line& line) { return indexChange(textOf(line)) != change; };
    if (std::ranges::any_of(linesOf_[pdfName], isOther)) setChange(pdfName, change);
    const std::vector<Line>& lines = linesOf_[pdfName];
    std::vector<std::size_t> changed;
    for (const Line& line : lines)
        for (const std::size_t place : openMarks(textOf(line)))
            changed.push_back(line.Begin + place);
    for (const std::size_t place : changed)
        text_[place] = arrivedMark;
    store(changed);
    return static_cast<int>(lines.size());
}

void DayIndex::setChange(std::string_view pdfName, std::string_view change) {
    isOnDisk_ = false;
    std::string renewed;
    for (const std::string_view old : indexLines(text_)) {
        std::string line(old);
        if (indexKey(old) == pdfName) setIndexField(line, IndexField::Change, change);
        appendIndexLine(renewed, line);
    }
    parse(renewed);
}

std::string_view DayIndex::textOf(const Line& line) const {
    return std::string_view(text_).substr(line.Begin, line.Length);
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
    path_ = path;
    parse(files_.ReadFile(path));
}

void DayIndex::parse(const std::string& content) {
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
