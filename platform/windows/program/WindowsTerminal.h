// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Terminal.h"

namespace vell {

// A console window, which is spoken to in UTF-16, or pipes and files, which get UTF-8.
class WindowsTerminal : public Terminal {
  public:
    WindowsTerminal();
    ~WindowsTerminal() override;
    WindowsTerminal(const WindowsTerminal&) = delete;
    WindowsTerminal& operator=(const WindowsTerminal&) = delete;

    [[nodiscard]] bool isTerminal(Stream stream) const override;
    [[nodiscard]] bool canAsk() const override;
    [[nodiscard]] int width() const override;
    void Write(Stream stream, std::string_view utf8) override;
    [[nodiscard]] bool isInputReady() override;
    [[nodiscard]] std::optional<std::string> ReadLine() override;
    void setEcho(bool on) override;

  private:
    [[nodiscard]] std::string readSome();

    unsigned long outputMode_ = 0;  // as it was found; 0 when it was not changed
    std::string pending_;
    bool inputEnded_ = false;
};

}  // namespace vell
