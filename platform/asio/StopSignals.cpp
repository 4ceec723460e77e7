// SPDX-License-Identifier: MIT
#include "platform/asio/StopSignals.h"

#include <csignal>
#include <utility>

#include <asio/signal_set.hpp>

#include "platform/asio/AsioEventLoop.h"

namespace vell {

struct StopSignals::Watch : std::enable_shared_from_this<Watch> {
    Watch(asio::io_context& context, std::function<void(int)> stop)
        : Signals(context, SIGINT, SIGTERM), Stop(std::move(stop)) {}

    void next() {
        Signals.async_wait([self = weak_from_this()](const std::error_code& problem, int number) {
            const auto watch = self.lock();
            if (problem || !watch) return;
            watch->next();
            watch->Stop(number);
        });
    }

    asio::signal_set Signals;
    std::function<void(int)> Stop;
};

StopSignals::StopSignals(AsioEventLoop& loop, std::function<void(int)> stop)
    : watch_(std::make_shared<Watch>(loop.context(), std::move(stop))) {
    watch_->next();
}

StopSignals::~StopSignals() = default;

}  // namespace vell
