// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vell {

// What the rules of the schedule dialog ask of its window.
class ScheduleView {
  public:
    virtual ~ScheduleView() = default;

    // A box with one line of text, which holds `offered` at first. What stands in it at the end; nothing when the user
    // gave up.
    [[nodiscard]] virtual std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                                              std::string_view offered) = 0;
    virtual void Beep() = 0;
};

}  // namespace vell
