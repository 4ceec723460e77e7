// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vell {

// A pattern for file names in code page 1253: "*" stands for any characters, "?" for one; case does not count.
// "*.*" fits every name, also one without a dot.
class NamePattern {
  public:
    explicit NamePattern(std::string_view pattern);
    [[nodiscard]] bool fits(std::string_view name) const;

  private:
    std::string pattern_;  // in capitals
};

}  // namespace vell
