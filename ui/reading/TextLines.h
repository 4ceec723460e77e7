// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vell {

// Makes whole lines of a text that comes in pieces of any length. Lines end with "\n" then. A paragraph of more than
// `longestLine` characters is broken at a blank: a control that shows text works through one line at a time.
class TextLines {
  public:
    static constexpr std::size_t longestLine = 8000;

    // The lines that are whole by now.
    [[nodiscard]] std::string add(std::string_view piece);
    // What is left when the text is at its end.
    [[nodiscard]] std::string finish();

  private:
    std::string rest_;
};

}  // namespace vell
