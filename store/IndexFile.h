// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

// The files that a day's folder holds beside its articles, and how its index, ALLFILES.DIR, is read: a record per line
// (IndexLine.h), lines ended by CR LF.
namespace vell {

inline constexpr std::string_view indexFileName = "ALLFILES.DIR";
inline constexpr std::string_view alertFileName = "ALERT.MSG";
inline constexpr std::string_view openedFileName = "OPENED.DIR";
inline constexpr std::string_view printedFileName = "PRINTED.DIR";

struct IndexRecord {
    std::string FileName;
    std::string NewspaperName;
    std::string Description;
    std::string Category;     // several values separated by ","
    std::string ArticleType;  // likewise; a single blank when there is none
};

// What the index says of each file. The last line is never used: a record counts only when another line, even an
// empty one, follows it.
[[nodiscard]] std::vector<IndexRecord> readIndex(std::string_view text);

}  // namespace vell
