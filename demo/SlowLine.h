// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include <asio/awaitable.hpp>

#include "demo/Options.h"

namespace vell::demo {

// Makes answers and transfers as slow as the command line asks; by default it holds nothing back.
class SlowLine {
  public:
    explicit SlowLine(LineSpeed speed) : speed_(speed) {}

    // How much to move at once: large when the line is fast, about a twentieth of a second's worth when it is slow.
    [[nodiscard]] std::size_t blockSize() const;

    asio::awaitable<void> beforeAnswer() const;
    asio::awaitable<void> afterBlock(std::size_t bytes) const;

  private:
    LineSpeed speed_;
};

}  // namespace vell::demo
