// SPDX-License-Identifier: MIT
#include "demo/SlowLine.h"

#include <algorithm>
#include <chrono>

#include <asio/steady_timer.hpp>
#include <asio/this_coro.hpp>
#include <asio/use_awaitable.hpp>

namespace vell::demo {

namespace {

asio::awaitable<void> pause(std::chrono::nanoseconds length) {
    asio::steady_timer timer(co_await asio::this_coro::executor, length);
    co_await timer.async_wait(asio::use_awaitable);
}

}  // namespace

std::size_t SlowLine::blockSize() const {
    constexpr std::size_t largest = 256UL * 1024;
    if (speed_.BytesPerSecond == 0) return largest;
    return std::clamp<std::size_t>(speed_.BytesPerSecond / 20, 256, largest);
}

std::uintmax_t SlowLine::broughtOf(std::uintmax_t size) const {
    ++transfers_;
    const bool breaks = speed_.BreaksEach > 0 && transfers_ % speed_.BreaksEach == 0;
    return breaks ? size / 2 : size;
}

asio::awaitable<void> SlowLine::beforeAnswer() const {
    if (speed_.Latency.count() > 0) co_await pause(speed_.Latency);
}

asio::awaitable<void> SlowLine::afterBlock(std::size_t bytes) const {
    constexpr std::size_t nanosecondsPerSecond = 1'000'000'000;
    if (speed_.BytesPerSecond > 0)
        co_await pause(std::chrono::nanoseconds{bytes * nanosecondsPerSecond / speed_.BytesPerSecond});
}

}  // namespace vell::demo
