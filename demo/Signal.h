// SPDX-License-Identifier: MIT
#pragma once

#include <asio/awaitable.hpp>
#include <asio/redirect_error.hpp>
#include <asio/steady_timer.hpp>
#include <asio/use_awaitable.hpp>

namespace vell::demo {

// Lets coroutines sleep until something changed; they look for themselves whether it is what they wait for.
class Signal {
  public:
    explicit Signal(const asio::any_io_executor& executor) : timer_(executor, asio::steady_timer::time_point::max()) {}

    void raise() { timer_.cancel(); }
    asio::awaitable<void> wait() {
        asio::error_code cancelled;
        co_await timer_.async_wait(asio::redirect_error(asio::use_awaitable, cancelled));
    }

  private:
    asio::steady_timer timer_;
};

}  // namespace vell::demo
