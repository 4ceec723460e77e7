// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// A record of a day's index, as the service lists it and as a line of ALLFILES.DIR holds it: fields separated by "||".
// Nothing but the name needs to be there; a field that is missing reads as empty.
namespace vell {

enum class IndexField : std::size_t {
    FileName,
    Newspaper,
    Description,
    Category,     // several values are separated by "|"
    ArticleType,  // likewise
    Change,       // another value says that the service has another version of the clipping
    Mark,         // "-", or "d" once the whole clipping has arrived
    PdfSize,      // in bytes, as are the two behind it
    TextSize,
    CompanionSize,
};

// Ends every line of the file.
inline constexpr std::string_view indexLineEnd = "\r\n";

// A record that says what a clipping is has the fields up to its type.
inline constexpr std::size_t fewestIndexFields = 5;

[[nodiscard]] std::vector<std::string_view> indexFields(std::string_view line);
[[nodiscard]] std::string_view indexField(std::string_view line, IndexField field);
// The text before the first "||".
[[nodiscard]] std::string_view indexKey(std::string_view line);
// The change field, without a "|" at its end: when another field follows, it would count to the separator.
[[nodiscard]] std::string_view indexChange(std::string_view line);
// The number in a field with a size; 0 for none and the greatest number for one beyond it. A size is of use for
// progress and checks: an absurd one must not cost the user the day.
[[nodiscard]] std::int32_t indexSize(std::string_view line, IndexField field);

// Fields in front of this one that are missing are added, empty.
void setIndexField(std::string& line, IndexField field, std::string_view value);

// Has the whole clipping arrived?
[[nodiscard]] bool isMarked(std::string_view line);
// Makes "||d||" of the line's first "||-||".
void markFirst(std::string& line);
// Where "-" stands for a mark in the line: each in the middle of a "||-||" that shares no character with the one
// before.
[[nodiscard]] std::vector<std::size_t> openMarks(std::string_view line);
inline constexpr char arrivedMark = 'd';

// The lines that are not empty.
[[nodiscard]] std::vector<std::string_view> indexLines(std::string_view text);
// Adds the line, ended by CR LF.
void appendIndexLine(std::string& text, std::string_view line);

}  // namespace vell
