// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace vell {

// What can show how a search goes. Texts are in code page 1253.
class FindView {
  public:
    virtual ~FindView() = default;

    // How far it is, or what came of it; empty when there is nothing to tell beside the list.
    virtual void showFindStatus(std::string_view text) = 0;
    // The search has been ended, or taken back to one day, by something else than its own box.
    virtual void showFindChoice(std::string_view typed, bool inAllDays) = 0;
};

}  // namespace vell
