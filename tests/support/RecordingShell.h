// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Shell.h"

namespace vell::test {

// Opens nothing and answers `Result`.
class RecordingShell : public Shell {
  public:
    [[nodiscard]] int Open(std::string_view file, std::string_view parameters) override {
        Opened.append(file).append(" <").append(parameters).append(">\n");
        return Result;
    }

    [[nodiscard]] std::string LastReason() const override { return Reason; }

    std::string Reason;
    int Result = shell_code::Started;
    std::string Opened;  // what it was asked for: a file and its parameters in each line
};

}  // namespace vell::test
