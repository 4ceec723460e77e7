// SPDX-License-Identifier: MIT
#include "store/IndexLine.h"

#include <algorithm>
#include <limits>

#include "base/errors.h"
#include "base/text.h"

namespace vell {

namespace {

constexpr std::string_view separator = "||";
constexpr std::string_view openMark = "||-||";

// Where the field begins; npos when the line has fewer.
std::size_t startOf(std::string_view line, IndexField field) {
    std::size_t start = 0;
    for (auto left = static_cast<std::size_t>(field); left > 0; --left) {
        const auto at = line.find(separator, start);
        if (at == std::string_view::npos) return at;
        start = at + separator.size();
    }
    return start;
}

}  // namespace

std::vector<std::string_view> indexFields(std::string_view line) {
    return Split(line, separator);
}

std::string_view indexField(std::string_view line, IndexField field) {
    const auto start = startOf(line, field);
    return start == std::string_view::npos ? std::string_view{} : indexKey(line.substr(start));
}

std::string_view indexKey(std::string_view line) {
    return line.substr(0, line.find(separator));
}

std::string_view indexChange(std::string_view line) {
    const std::string_view change = indexField(line, IndexField::Change);
    return change.substr(0, change.find_last_not_of('|') + 1);
}

std::int32_t indexSize(std::string_view line, IndexField field) {
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    try {
        return CInt32(std::clamp(Val(indexField(line, field)), 0.0, most));
    } catch (const RunTimeError&) {
        return 0;
    }
}

void setIndexField(std::string& line, IndexField field, std::string_view value) {
    auto start = startOf(line, field);
    for (; start == std::string::npos; start = startOf(line, field))
        line.append(separator);
    line.replace(start, indexKey(std::string_view(line).substr(start)).size(), value);
}

bool isMarked(std::string_view line) {
    return indexField(line, IndexField::Mark) == std::string_view(&arrivedMark, 1);
}

void markFirst(std::string& line) {
    if (const auto at = line.find(openMark); at != std::string::npos) line[at + separator.size()] = arrivedMark;
}

std::vector<std::size_t> openMarks(std::string_view line) {
    std::vector<std::size_t> places;
    for (auto at = line.find(openMark); at != std::string_view::npos; at = line.find(openMark, at + openMark.size()))
        places.push_back(at + separator.size());
    return places;
}

std::vector<std::string_view> indexLines(std::string_view text) {
    auto lines = Split(text, indexLineEnd);
    std::erase(lines, std::string_view{});
    return lines;
}

void appendIndexLine(std::string& text, std::string_view line) {
    text.append(line).append(indexLineEnd);
}

}  // namespace vell
