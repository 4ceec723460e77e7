// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/TempFolder.h"

namespace vell::test {

// A tree as a person would make it, small enough to check every byte: two days with clippings, 07032004 and 09032004,
// none between them, an alert for the first one.
class SmallTree : public TempFolder {
  public:
    SmallTree();

    // The three forms of a clipping.
    void putClipping(const std::string& day, const std::string& base) const;
};

// The bytes that lie in a file of that name.
[[nodiscard]] std::string contentOf(const std::string& name);

}  // namespace vell::test
