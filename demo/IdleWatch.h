// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include <asio/steady_timer.hpp>

namespace vell::demo {

// Ends a session whose peer has gone silent. Whatever moves bytes calls `touch`, which costs nothing but a look at the
// clock. The session owns the watch and is told through `onIdle`, again after each further silence, as long as it
// lives.
class IdleWatch {
  public:
    IdleWatch(const asio::any_io_executor& executor, std::chrono::seconds allowed)
        : timer_(executor), allowed_(allowed) {}

    void start(std::weak_ptr<void> owner, std::function<void()> onIdle);
    void touch() { deadline_ = std::chrono::steady_clock::now() + allowed_; }
    void stop() { timer_.cancel(); }
    [[nodiscard]] asio::any_io_executor executor() { return timer_.get_executor(); }

  private:
    void wait();

    std::chrono::steady_clock::time_point deadline_;
    std::weak_ptr<void> owner_;
    std::function<void()> onIdle_;
    asio::steady_timer timer_;
    std::chrono::seconds allowed_;
};

}  // namespace vell::demo
