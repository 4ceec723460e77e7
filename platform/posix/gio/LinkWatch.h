// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/posix/gio/NetworkManagerBus.h"

namespace vell {

// Waits for what NetworkManager does with a link, letting events happen meanwhile. The wait ends early when
// NetworkManager or the bus goes away, or when somebody cancels it. For platform/posix/gio alone.
class LinkWatch {
  public:
    // The wait is over, also without its outcome, when `cancels` changes.
    LinkWatch(NetworkManagerBus& manager, const Clock& clock, std::chrono::milliseconds patience,
              const std::uint64_t& cancels);

    // True when `done` came true.
    [[nodiscard]] bool until(const std::function<bool()>& done);
    // True when something was heard of NetworkManager since the last call, and every second besides: then it is worth
    // a question.
    [[nodiscard]] bool isDue();
    // Why the wait ended without its outcome.
    [[nodiscard]] std::string whyNot() const;
    // What NetworkManager said of the last link that went down.
    [[nodiscard]] std::string downReason() const;

  private:
    void hear(const char* member, GVariant* arguments);
    [[nodiscard]] bool isLost() const { return lost_ || manager_.bus().isClosed(); }
    [[nodiscard]] bool isCancelled() const { return cancels_ != cancelsAtStart_; }

    NetworkManagerBus& manager_;
    const Clock& clock_;
    SteadyTime end_;
    SteadyTime nextLook_;
    const std::uint64_t& cancels_;
    std::uint64_t cancelsAtStart_;
    bool heard_ = false;
    bool lost_ = false;
    std::uint32_t downReason_ = 0;
};

}  // namespace vell
