// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/IniFile.h"

namespace vell {

// Text in INI syntax, read and changed by the system's own private-profile calls. These know files only: the text lies
// in one of its own for as long as a call needs it, in Unicode, so that nothing is lost where the machine's code page
// is another than 1253.
class ProfileFile {
  public:
    explicit ProfileFile(const std::string& bytes);

    [[nodiscard]] std::optional<std::string_view> value(std::string_view section, std::string_view key) const;

    // The text with a change made.
    [[nodiscard]] static std::string edited(const std::string& bytes, const std::vector<IniEdit>& edits);

  private:
    using Keys = std::map<std::string, std::string>;  // by their names in capitals

    std::map<std::string, Keys> sections_;
};

}  // namespace vell
