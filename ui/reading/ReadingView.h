// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vell {

// What stands above the text of a clipping. What is not known is empty.
struct ClippingHeading {
    std::string Title;
    std::string Newspaper;
    std::string Page;  // as the newspaper counts: "12", "B4"
    std::string Date;  // dd/mm/yyyy

    bool operator==(const ClippingHeading&) const = default;
};

// What can show the text of one clipping at a time. Texts are in code page 1253.
class ReadingView {
  public:
    virtual ~ReadingView() = default;

    // Nothing any more.
    virtual void clearText() = 0;
    // Another clipping: only its heading so far.
    virtual void beginText(const ClippingHeading& heading) = 0;
    // More of its text, in whole lines; lines end with "\n".
    virtual void appendText(std::string_view lines) = 0;
    // Why there is no text, or no more of it.
    virtual void showTextNotice(std::string_view text) = 0;
};

}  // namespace vell
