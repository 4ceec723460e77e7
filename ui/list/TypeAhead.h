// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "platform/Clock.h"

namespace vell {

// Finds the place in a list whose text begins with what the user types. Letters typed soon after each other make one
// beginning; the same letter again and again goes from one match to the next.
class TypeAhead {
  public:
    explicit TypeAhead(const Clock& clock) : clock_(clock) {}

    using TextAt = std::function<std::string(std::size_t place)>;
    // The place to go to, if any. `current` is where the user is.
    [[nodiscard]] std::optional<std::size_t> type(char letter, std::size_t count, std::optional<std::size_t> current,
                                                  const TextAt& textAt);

    // Another letter would go on with the beginning that is being typed.
    [[nodiscard]] bool isUnderWay() const;

  private:
    const Clock& clock_;
    std::string typed_;
    SteadyTime last_{};
};

}  // namespace vell
