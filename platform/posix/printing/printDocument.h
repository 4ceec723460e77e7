// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace vell {

struct PrintOutcome {
    int Code = 0;        // a shell_code; Started when CUPS has taken the document
    std::string Reason;  // else why not, and what to do about it; in code page 1253
};

// Has our helper (its full path) hand a document to CUPS, and waits for CUPS' answer for as long as `patience` lasts;
// nothing else happens meanwhile. A document that has not been taken by then is not printed later.
[[nodiscard]] PrintOutcome printDocument(const std::string& helper, const std::vector<std::string>& arguments,
                                         std::chrono::milliseconds patience);

}  // namespace vell
