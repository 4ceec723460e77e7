// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vell {

// Files in INI syntax, with the behaviour of GetPrivateProfileStringA and WritePrivateProfileStringA: section and key
// names are compared without regard to case, blanks around names and values do not count, one pair of quotation marks
// around a value is taken off, and lines that begin with ";" are comments. Texts are bytes; none is converted.
class IniFile {
  public:
    virtual ~IniFile() = default;

    // The value, cut to `bufferSize` - 1 bytes, or `missing` when there is no such key. Never raises.
    [[nodiscard]] virtual std::string ReadString(std::string_view file, std::string_view section, std::string_view key,
                                                 std::string_view missing, std::size_t bufferSize) const = 0;

    // Makes file, section and key as needed and leaves every other line as it is. Without a value the key is deleted,
    // without a key the whole section. The file is the old one or the new one, never half. False when it failed.
    [[nodiscard]] virtual bool WriteString(std::string_view file, std::string_view section,
                                           std::optional<std::string_view> key,
                                           std::optional<std::string_view> value) = 0;
};

}  // namespace vell
