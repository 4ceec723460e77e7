// SPDX-License-Identifier: MIT
#include "demo/IdleWatch.h"

#include <utility>

namespace vell::demo {

void IdleWatch::start(std::weak_ptr<void> owner, std::function<void()> onIdle) {
    owner_ = std::move(owner);
    onIdle_ = std::move(onIdle);
    touch();
    wait();
}

void IdleWatch::wait() {
    timer_.expires_at(deadline_);
    timer_.async_wait([this, watched = owner_](const asio::error_code& cancelled) {
        const auto alive = watched.lock();
        if (!alive || cancelled) return;
        if (std::chrono::steady_clock::now() >= deadline_) {
            onIdle_();
            touch();
        }
        wait();
    });
}

}  // namespace vell::demo
