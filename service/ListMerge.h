// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

// From the service's list and the day's old index to the new one: pure text work.
namespace vell {

struct Merged {
    std::string Index;                             // the text of the new index
    std::vector<std::string> GoneFiles;            // clippings of the old index that the list does not name
    std::unordered_set<std::string> NewFiles;      // clippings that are not here as the list names them
    std::unordered_set<std::string> ChangedFiles;  // clippings of which the service has another version now
};

// Whole clippings stay marked. The index says what is here: a clipping of which the service has another version keeps
// its old change field, without the mark, until the new version has come.
[[nodiscard]] Merged mergeWithIndex(const std::vector<std::string>& records, std::string_view oldIndex);

}  // namespace vell
