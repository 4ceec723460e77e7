// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Terminal.h"

namespace vell {

class PosixTerminal : public Terminal {
  public:
    PosixTerminal();
    [[nodiscard]] bool isTerminal(Stream stream) const override { return stream == Stream::Output ? output_ : error_; }
    [[nodiscard]] bool canAsk() const override;
    [[nodiscard]] int width() const override;
    void Write(Stream stream, std::string_view utf8) override;
    [[nodiscard]] bool isInputReady() override;
    [[nodiscard]] std::optional<std::string> ReadLine() override;
    void setEcho(bool on) override;

  private:
    // Asked once: a run writes thousands of lines.
    const bool output_;
    const bool error_;
    std::string pending_;  // read from the input and not handed out yet
    bool inputEnded_ = false;
};

}  // namespace vell
