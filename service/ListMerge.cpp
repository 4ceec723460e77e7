// SPDX-License-Identifier: MIT
#include "service/ListMerge.h"

#include <unordered_map>

#include "store/ClippingName.h"
#include "store/IndexLine.h"

namespace vell {

namespace {

// What the old line says of the files that are here.
void takeOver(std::string& line, std::string_view old, std::unordered_set<std::string>& changed) {
    const std::string_view oldChange = indexChange(old);
    if (oldChange != indexChange(line)) {
        changed.emplace(indexKey(line));
        setIndexField(line, IndexField::Change, oldChange);
    } else if (isMarked(old)) {
        markFirst(line);
    }
}

}  // namespace

Merged mergeWithIndex(const std::vector<std::string>& records, std::string_view oldIndex) {
    const auto oldLines = indexLines(oldIndex);
    std::unordered_map<std::string_view, std::string_view> oldLineOf;
    for (const std::string_view line : oldLines)
        if (isClippingName(indexKey(line))) oldLineOf.emplace(indexKey(line), line);

    Merged merged;
    for (std::string line : records) {
        if (const auto old = oldLineOf.extract(indexKey(line))) takeOver(line, old.mapped(), merged.ChangedFiles);
        if (!isMarked(line)) merged.NewFiles.emplace(indexKey(line));
        appendIndexLine(merged.Index, line);
    }
    for (const std::string_view line : oldLines)
        if (const std::string_view name = indexKey(line); oldLineOf.erase(name) > 0)
            merged.GoneFiles.emplace_back(name);
    return merged;
}

}  // namespace vell
