// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

// From the service's answer to the day's new index: pure text work.
namespace vell {

// The answer's records: separated by "<br>" in any case, blanks at the ends off, in upper case, accented capitals
// made plain.
[[nodiscard]] std::vector<std::string> answerRecords(std::string_view answer);

struct Merged {
    std::vector<std::string> Records;              // with the marks that the old index carries over
    std::vector<std::string> GoneFiles;            // articles that stand in the old index and no longer in the list
    std::unordered_set<std::string> ChangedFiles;  // articles of which the service has another version now
};

// Both lists are in the byte order of their file names; of a list out of order nothing is called gone that still
// stands in it.
[[nodiscard]] Merged mergeWithIndex(std::vector<std::string> records, std::string_view oldIndex);

}  // namespace vell
