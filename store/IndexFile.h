// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

// The text of a day's index, ALLFILES.DIR: a record per line, lines ended by CR LF, fields separated by "||": file
// name, newspaper, title, category, article type, change field, download mark ("-", or "d" once the whole clipping
// has arrived), sizes of its PDF, TXT and MT files. A "|" inside category and type separates several values.
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

// The text before the first "||".
[[nodiscard]] std::string_view indexKey(std::string_view line);
// One of a record's fields, counted from 0; empty when the record is shorter.
[[nodiscard]] std::string_view indexField(std::string_view line, std::size_t number);

// What the index says of each file. The last line is never used: a record counts only when another line, even an
// empty one, follows it.
[[nodiscard]] std::vector<IndexRecord> readIndex(std::string_view text);

// May this name, given by the service, be the name of a file in the day's folder? No separators, no "..", no drive, no
// control characters, none that a file system reserves, and none of the folder's own files.
[[nodiscard]] bool isClippingName(std::string_view name);

}  // namespace vell
