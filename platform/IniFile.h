// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vell {

// One change of a file in INI syntax. Without a value the key is deleted, without a key the whole section.
struct IniEdit {
    std::string Section;
    std::optional<std::string> Key;
    std::optional<std::string> Value;
};

// Files in INI syntax, with the behaviour of GetPrivateProfileStringA and WritePrivateProfileStringA: section and key
// names are compared without regard to case, blanks around names and values do not count, one pair of quotation marks
// around a value is taken off, and lines that begin with ";" are comments. Texts are bytes; none is converted.
// Failures raise RunTimeError. A file that does not exist has no keys; one that cannot be read is a failure.
class IniFile {
  public:
    virtual ~IniFile() = default;

    // The value, cut to `bufferSize` - 1 bytes, or `missing` when there is no such key.
    [[nodiscard]] virtual std::string ReadString(std::string_view file, std::string_view section, std::string_view key,
                                                 std::string_view missing, std::size_t bufferSize) const = 0;

    // Runs `reads`, in which the file reads as it was at one moment: none of its readings fails, or sees another
    // content than the one before.
    virtual void ReadAtOnce(std::string_view file, const std::function<void()>& reads) const = 0;

    // Makes all changes in one step: the file is the old one or the new one, never half. No other writer, in whatever
    // process or on whatever machine, comes between the call of `edits`, which may read the file as it is then but
    // not write it, and its replacement. File, sections and keys are made as needed; every other line stays as it is.
    virtual void Update(std::string_view file, const std::function<std::vector<IniEdit>()>& edits) = 0;
};

}  // namespace vell
