// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace vell {

// The bytes of a file in INI syntax, with look-up and with edits that leave every other line as it is. Where a section
// or a key stands twice the first one counts. What the rules of names and values are: IniFile.h.
class IniText {
  public:
    explicit IniText(std::string bytes = {});

    [[nodiscard]] const std::string& bytes() const { return bytes_; }
    // Without the blanks and quotation marks around it. Points into the text.
    [[nodiscard]] std::optional<std::string_view> value(std::string_view section, std::string_view key) const;

    // Names and value must not contain line ends.
    void set(std::string_view section, std::string_view key, std::string_view value);
    void removeKey(std::string_view section, std::string_view key);
    void removeSection(std::string_view section);

  private:
    // Places in the text.
    struct Range {
        std::size_t Begin = 0;
        std::size_t End = 0;
    };
    struct Key {
        Range Line;   // with its line end
        Range Value;  // from the first character that is not blank to the end of the line
    };
    struct Section {
        Range All;                // from its header to the next section's
        std::size_t UsedEnd = 0;  // behind the last line that is not blank
        std::unordered_map<std::string, Key> Keys;
    };

    void parse();
    Section* parseHeader(Range line, std::string_view content);
    void parseKey(Section& section, Range line, Range content);
    [[nodiscard]] const Section* find(std::string_view section) const;
    [[nodiscard]] std::string_view textOf(Range range) const;
    [[nodiscard]] std::string lineEnd() const;
    void insertLine(std::size_t at, std::string_view line);

    std::string bytes_;
    std::unordered_map<std::string, Section> sections_;
};

}  // namespace vell
