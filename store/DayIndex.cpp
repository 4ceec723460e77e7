// SPDX-License-Identifier: MIT
#include "store/DayIndex.h"

#include <string_view>
#include <unordered_map>

#include "platform/Files.h"
#include "store/IndexFile.h"
#include "store/IndexLine.h"

namespace vell {

namespace {

void mark(std::string& line, std::string_view change) {
    if (indexChange(line) != change) setIndexField(line, IndexField::Change, change);
    for (const std::size_t place : openMarks(line))
        line[place] = arrivedMark;
}

}  // namespace

void DayIndex::markDownloaded(const std::string& dayFolder, std::span<const ArrivedClipping> clippings) {
    std::unordered_map<std::string_view, std::string_view> changeOf;
    for (const ArrivedClipping& clipping : clippings)
        changeOf.insert_or_assign(clipping.PdfName, clipping.Change);

    const std::string path = dayFolder + std::string(indexFileName);
    const auto lock = files_.Lock(path);
    const std::string before = files_.ReadFile(path);
    std::string marked;
    for (const std::string_view old : indexLines(before)) {
        if (indexFields(old).size() < 2) continue;
        std::string line(old);
        if (const auto arrived = changeOf.find(indexKey(old)); arrived != changeOf.end()) mark(line, arrived->second);
        appendIndexLine(marked, line);
    }
    appendIndexLine(marked, "");
    if (marked != before) files_.WriteWhole(path, marked, Durability::Flushed);
}

}  // namespace vell
