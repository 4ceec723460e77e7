// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <utility>

#include "platform/Clock.h"
#include "platform/posix/network/systemProxy.h"

namespace vell {

// Keeps the choice for the server that was asked for last: a run fetches thousands of files from one, and asking the
// desktop each time costs a thread or a message, and seconds where its answer does not come.
class ProxyMemory {
  public:
    ProxyMemory(ProxyChoice choice, const Clock& clock) : choice_(std::move(choice)), clock_(clock) {}

    [[nodiscard]] const std::optional<std::string>& of(const std::string& address) {
        const std::string server = address.substr(0, address.find('/', address.find("//") + 2));
        if (server_ == server && clock_.Steady() < until_) return proxy_;
        proxy_ = choice_(address);
        server_ = server;
        until_ = clock_.Steady() + keptFor;
        return proxy_;
    }

  private:
    static constexpr std::chrono::seconds keptFor{10};  // the desktop's setting may change

    ProxyChoice choice_;
    const Clock& clock_;
    std::string server_;  // scheme, host and port; empty at first
    std::optional<std::string> proxy_;
    SteadyTime until_{};
};

}  // namespace vell
