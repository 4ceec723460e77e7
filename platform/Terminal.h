// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vell {

// The terminal, or the pipes that stand for it, of a program without a window. Texts are UTF-8.
class Terminal {
  public:
    enum class Stream { Output, Error };

    virtual ~Terminal() = default;

    [[nodiscard]] virtual bool isTerminal(Stream stream) const = 0;
    // True when a person can be asked: input and error output are a terminal.
    [[nodiscard]] virtual bool canAsk() const = 0;
    // In characters; 80 when nobody knows.
    [[nodiscard]] virtual int width() const = 0;

    // What cannot be written is lost without a word: a closed pipe must not end a download.
    virtual void Write(Stream stream, std::string_view utf8) = 0;

    // True when a read will not wait.
    [[nodiscard]] virtual bool isInputReady() = 0;
    // The next line without its end; nothing at the end of the input.
    [[nodiscard]] virtual std::optional<std::string> ReadLine() = 0;
    // Whether what is typed can be seen.
    virtual void setEcho(bool on) = 0;
};

// This process's own.
[[nodiscard]] std::unique_ptr<Terminal> systemTerminal();

}  // namespace vell
