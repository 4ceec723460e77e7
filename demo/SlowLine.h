// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

#include <asio/awaitable.hpp>

#include "demo/Options.h"

namespace vell::demo {

// Makes answers and transfers as slow, and as unreliable, as the command line asks; by default it holds nothing back.
class SlowLine {
  public:
    explicit SlowLine(LineSpeed speed) : speed_(speed) {}

    // How much to move at once: large when the line is fast, about a twentieth of a second's worth when it is slow.
    [[nodiscard]] std::size_t blockSize() const;

    // How many of a file's bytes this transfer brings before it breaks: all of them, unless it is the turn of one that
    // breaks half way.
    [[nodiscard]] std::uintmax_t broughtOf(std::uintmax_t size) const;

    asio::awaitable<void> beforeAnswer() const;
    asio::awaitable<void> afterBlock(std::size_t bytes) const;

  private:
    LineSpeed speed_;
    mutable std::size_t transfers_ = 0;
};

}  // namespace vell::demo
