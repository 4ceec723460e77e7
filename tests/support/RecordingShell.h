// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/Shell.h"

namespace vell::test {

// Opens nothing, remembers what it was asked for ("file|parameters") and answers `Result`.
class RecordingShell : public Shell {
  public:
    [[nodiscard]] int Open(std::string_view file, std::string_view parameters) override {
        Opened.push_back(std::string(file).append("|").append(parameters));
        return Result;
    }

    int Result = 33;
    std::vector<std::string> Opened;
};

}  // namespace vell::test
