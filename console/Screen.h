// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vell {

class Terminal;

// What code-page text looks like on the terminal, and where the cursor is: the status line is rewritten in place, and
// everything else begins on a line of its own.
class Screen {
  public:
    explicit Screen(Terminal& terminal) : terminal_(terminal) {}

    // A line of the program's real output.
    void print(std::string_view utf8Line);
    // A line for the person at the terminal.
    void tell(std::string_view text);
    // A question; the cursor stays behind it.
    void ask(std::string_view text);

    // The status: rewritten in place on a terminal, with a bar when `percent` is not negative; else a line each time.
    void showStatus(std::string_view text, int percent);
    // Ends the status line, so that what comes next does not overwrite it.
    void leaveStatus();

  private:
    Terminal& terminal_;
    bool onStatusLine_ = false;
};

// As UTF-8 for people and other programs: control characters become blanks, so that no text of the service can steer
// the terminal or break a line.
[[nodiscard]] std::string shownText(std::string_view text);
// The same, but lines stay lines; empty ones at the end are left out.
[[nodiscard]] std::string shownLines(std::string_view text);
// How many columns a UTF-8 text takes; every character of the code page takes one.
[[nodiscard]] std::size_t columns(std::string_view utf8);
// Cut to so many columns, with "…" at the end when something was cut off.
[[nodiscard]] std::string fitted(std::string_view utf8, std::size_t width);

}  // namespace vell
