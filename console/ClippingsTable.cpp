// SPDX-License-Identifier: MIT
#include "console/ClippingsTable.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "base/text.h"
#include "console/Screen.h"

namespace vell {

namespace {

constexpr std::size_t columnCount = 5;
using Cells = std::array<std::string, columnCount>;
using Widths = std::array<std::size_t, columnCount>;

constexpr std::size_t gap = 2;
constexpr std::size_t narrowest = 8;
constexpr std::size_t firstShrinkable = 1;  // the marks are one character

const char* marksOf(const ClippingRow& row) {
    if (row.Opened && row.Printed) return "B";
    if (row.Opened) return "O";
    return row.Printed ? "P" : "-";
}

Cells cellsOf(const ClippingRow& row) {
    const CFtpFile& file = *row.File;
    // A clipping that the index says nothing of is known by its file alone.
    const std::string& title =
        file.Description.empty() && file.NewspaperName.empty() ? file.FileName : file.Description;
    return {marksOf(row), shownText(file.NewspaperName), shownText(title), shownText(Trim(file.ArticleType)),
            shownText(file.Category)};
}

std::size_t total(const Widths& widths) {
    return std::accumulate(widths.begin(), widths.end(), gap * (columnCount - 1));
}

// Takes from the widest column until the line fits or nothing can be taken.
void shrink(Widths& widths, std::size_t width) {
    while (total(widths) > width) {
        const auto widest = std::max_element(widths.begin() + firstShrinkable, widths.end());
        if (*widest <= narrowest) return;
        --*widest;
    }
}

std::string lineOf(const Cells& cells, const Widths& widths) {
    std::string line;
    for (std::size_t i = 0; i < columnCount; ++i) {
        const std::string cell = fitted(cells[i], widths[i]);
        line += cell;
        if (i + 1 < columnCount) line.append(widths[i] - columns(cell) + gap, ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

}  // namespace

std::vector<std::string> clippingsTable(const std::vector<ClippingRow>& rows, std::size_t width) {
    std::vector<Cells> table;
    table.reserve(rows.size() + 1);
    table.push_back({"", "Newspaper", "Title", "Type", "Category"});
    for (const ClippingRow& row : rows)
        table.push_back(cellsOf(row));
    Widths widths{};
    for (const Cells& cells : table)
        for (std::size_t i = 0; i < columnCount; ++i)
            widths[i] = std::max(widths[i], columns(cells[i]));
    if (width > 0) shrink(widths, width);

    std::vector<std::string> lines;
    lines.reserve(table.size() + 1);
    for (const Cells& cells : table)
        lines.push_back(lineOf(cells, widths));
    std::string rule;
    for (std::size_t i = 0; i < columnCount; ++i) {
        for (std::size_t n = 0; n < widths[i]; ++n)
            rule += "─";
        if (i + 1 < columnCount) rule.append(gap, ' ');
    }
    lines.insert(lines.begin() + 1, rule);
    return lines;
}

std::string clippingTsv(const ClippingRow& row) {
    const CFtpFile& file = *row.File;
    std::string line = marksOf(row);
    for (const std::string& field : {file.NewspaperName, file.Description, std::string(Trim(file.ArticleType)),
                                     file.Category, file.FileName, row.path()})
        line += "\t" + shownText(field);
    return line;
}

}  // namespace vell
