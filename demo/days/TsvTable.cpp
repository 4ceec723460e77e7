// SPDX-License-Identifier: MIT
#include "demo/days/TsvTable.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "base/text.h"

namespace vell::demo {

namespace {

std::vector<std::string> cellsOf(std::string_view line) {
    std::vector<std::string> cells;
    for (auto cell : Split(line, "\t"))
        cells.emplace_back(Trim(cell));
    return cells;
}

}  // namespace

std::string fileText(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string codePageFileText(const std::filesystem::path& file) {
    const std::string utf8 = fileText(file);
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    const bool marked = std::string_view(utf8).starts_with(byteOrderMark);
    return codePageFromUtf8Lossy(std::string_view(utf8).substr(marked ? byteOrderMark.size() : 0));
}

TsvTable TsvTable::read(const std::filesystem::path& file) {
    TsvTable table;
    const std::string text = Replace(codePageFileText(file), "\r\n", "\n");
    std::size_t number = 0;
    for (auto line : Split(text, "\n")) {
        ++number;
        if (Trim(line).empty()) continue;
        if (table.columns_.empty())
            table.columns_ = cellsOf(line);
        else
            table.rows_.push_back({number, cellsOf(line)});
    }
    return table;
}

std::string TsvTable::cell(const Row& row, std::string_view column) const {
    const auto found = std::find_if(columns_.begin(), columns_.end(),
                                    [&](const std::string& name) { return equalNoCase(name, column); });
    const auto index = static_cast<std::size_t>(found - columns_.begin());
    return index < row.Cells.size() ? row.Cells[index] : std::string{};
}

}  // namespace vell::demo
