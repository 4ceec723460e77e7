// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/errors.h"
#include "platform/MessageBoxes.h"

namespace vell::test {

using Lines = std::vector<std::string>;

// Keeps what a part of the program tells its user and the log, in order.
class Recorder : public MessageBoxes, public TextLog, public ErrorLog {
  public:
    Answer Show(std::string_view text, std::string_view caption, Buttons shown, BoxIcon) override {
        lines.push_back("box: " + std::string(text));
        lastBox = {std::string(caption), shown};
        return answer;
    }
    void WriteLog(std::string_view text) noexcept override { lines.push_back("log: " + std::string(text)); }
    void LogError(const RunTimeError& error, std::string_view procedure) noexcept override {
        lines.push_back("error: " + error.Description + " in " + std::string(procedure));
    }

    // Since the last call.
    [[nodiscard]] Lines told() { return std::exchange(lines, {}); }

    Lines lines;
    Answer answer = Answer::Yes;
    std::pair<std::string, Buttons> lastBox;
};

}  // namespace vell::test
