// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <string>
#include <utility>

#include "platform/Terminal.h"

namespace vell::test {

// A terminal, or pipes, whose user has typed ahead.
class FakeTerminal : public Terminal {
  public:
    [[nodiscard]] bool isTerminal(Stream /*stream*/) const override { return Person; }
    [[nodiscard]] bool canAsk() const override { return Person; }
    [[nodiscard]] int width() const override { return 40; }
    void Write(Stream stream, std::string_view utf8) override { (stream == Stream::Output ? Out : Err) += utf8; }
    [[nodiscard]] bool isInputReady() override { return !Silent; }
    [[nodiscard]] std::optional<std::string> ReadLine() override {
        if (!Echo) Err += "*";
        if (Typed.empty()) return std::nullopt;
        std::string line = Typed.front();
        Typed.pop_front();
        return line;
    }
    void setEcho(bool on) override { Echo = on; }
    // What was written since the last call: the output, "!", the error output.
    std::string taken() { return std::exchange(Out, "") + "!" + std::exchange(Err, ""); }

    std::string Out, Err;
    std::deque<std::string> Typed;
    bool Person = false, Silent = false, Echo = true;
};

}  // namespace vell::test
