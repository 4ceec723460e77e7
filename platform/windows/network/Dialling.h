// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace vell {

class EventLoop;

// Calls of the system that may wait for a modem, made on a thread of their own while the caller lets events happen.
class Dialling {
  public:
    explicit Dialling(EventLoop& loop) : loop_(loop) {}

    // What the call gave, or `cancelled` when cancel() came first. `tooLate` is told what a call gave that was not
    // waited for: what it has brought about is to be undone.
    std::uint32_t wait(std::function<std::uint32_t()> call, std::uint32_t cancelled,
                       std::function<void(std::uint32_t)> tooLate = nullptr);
    void cancel();

  private:
    EventLoop& loop_;
    std::uint64_t cancels_ = 0;
};

}  // namespace vell
