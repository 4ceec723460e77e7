// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vell {

class modIni;

// How the user likes the window to look, kept in the section "View" of the settings file, one key for each choice. A
// key that is missing or makes no sense gives what the caller says. Texts are in code page 1253.
class ViewSettings {
  public:
    explicit ViewSettings(modIni& ini) : ini_(ini) {}

    [[nodiscard]] std::string text(std::string_view key, std::string_view otherwise) const;
    [[nodiscard]] int number(std::string_view key, int otherwise) const;
    [[nodiscard]] bool flag(std::string_view key, bool otherwise) const;

    // The file is written at once, and only when the value is another. A failure is logged.
    void keepText(std::string_view key, std::string_view value);
    void keepNumber(std::string_view key, int value);
    void keepFlag(std::string_view key, bool value);

  private:
    modIni& ini_;
};

}  // namespace vell
