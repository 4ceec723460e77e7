// SPDX-License-Identifier: MIT
#include "store/DayIndex.h"

#include "base/text.h"
#include "store/IndexFile.h"

namespace vell {

namespace {
constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view openMark = "||-||";
constexpr std::string_view doneMark = "||d||";  // as long as the other: lines keep their places
}  // namespace

DayIndex::DayIndex(Files& files) : files_(files) {}

int DayIndex::markDownloaded(const std::string& dayFolder, const std::string& pdfName) {
    load(dayFolder + std::string(indexFileName));
    const auto lines = linesOf_.find(pdfName);
    const bool found = lines != linesOf_.end();
    if (found) {
        for (const std::size_t begin : lines->second) {
            const std::size_t length = text_.find(lineEnd, begin) - begin;
            text_.replace(begin, length, Replace(std::string_view(text_).substr(begin, length), openMark, doneMark));
        }
    }
    stamp_.reset();  // if writing fails, the text here is not the file's
    files_.WriteWhole(path_, text_, Durability::Rename);
    stamp_ = files_.Stamp(path_);
    return found ? static_cast<int>(lines->second.size()) : 0;
}

void DayIndex::load(const std::string& path) {
    if (path == path_ && stamp_ && files_.Stamp(path) == stamp_) return;
    const std::string content = files_.ReadFile(path);
    path_ = path;
    text_.clear();
    linesOf_.clear();
    for (const std::string_view line : Split(content, lineEnd)) {
        if (line.find("||") == std::string_view::npos) continue;
        linesOf_[std::string(indexKey(line))].push_back(text_.size());
        text_.append(line).append(lineEnd);
    }
    text_.append(lineEnd);
}

}  // namespace vell
