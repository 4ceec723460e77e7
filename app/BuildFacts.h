// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vell {

// What a program was built as.
struct BuildFacts {
    std::string Version;    // "major.minor.revision"
    std::string UpdateKey;  // of the maker of its updates: base64 of the DER form; empty when it was built without
};

// Of the running program: each is compiled with its own.
[[nodiscard]] BuildFacts buildFacts();

}  // namespace vell
