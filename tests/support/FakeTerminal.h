// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <string>

#include "platform/Terminal.h"

namespace vell::test {

// A terminal, or pipes, whose user has typed ahead.
class FakeTerminal : public Terminal {
  public:
    [[nodiscard]] bool isTerminal(Stream /*stream*/) const override { return Person; }
    [[nodiscard]] bool canAsk() const override { return Person; }
    [[nodiscard]] int width() const override { return Width; }
    void Write(Stream stream, std::string_view utf8) override { (stream == Stream::Output ? Out : Err) += utf8; }
    [[nodiscard]] bool isInputReady() override { return !Silent; }
    [[nodiscard]] std::optional<std::string> ReadLine() override {
        if (Typed.empty()) return std::nullopt;
        std::string line = Typed.front();
        Typed.pop_front();
        if (!Echo) Err += "*";
        return line;
    }
    void setEcho(bool on) override { Echo = on; }
    // What was written since the last call: the output, and after "!" the error output.
    std::string taken() {
        std::string text = Out + (Err.empty() ? "" : "!" + Err);
        Out.clear();
        Err.clear();
        return text;
    }

    std::string Out, Err;
    std::deque<std::string> Typed;
    bool Person = false;
    bool Silent = false;
    bool Echo = true;
    int Width = 40;
};

}  // namespace vell::test
