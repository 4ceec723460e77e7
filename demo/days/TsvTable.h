// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vell::demo {

// A table that a person keeps with a text editor: UTF-8, cells separated by tabs, the first line names the columns.
// Empty lines and the marks that editors leave (a byte order mark, CR before LF) do not count. Cells are handed out in
// code page 1253.
class TsvTable {
  public:
    struct Row {
        std::size_t Line = 0;  // its number in the file, for messages
        std::vector<std::string> Cells;
    };

    // A missing file is a table without rows.
    [[nodiscard]] static TsvTable read(const std::filesystem::path& file);

    [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }
    // Trimmed; empty when the row or the table has no such cell.
    [[nodiscard]] std::string cell(const Row& row, std::string_view column) const;

  private:
    std::vector<std::string> columns_;
    std::vector<Row> rows_;
};

// The whole file, empty when it cannot be read.
[[nodiscard]] std::string fileText(const std::filesystem::path& file);
// The same for a UTF-8 text file, in code page 1253; "?" for what the code page lacks.
[[nodiscard]] std::string codePageFileText(const std::filesystem::path& file);

}  // namespace vell::demo
