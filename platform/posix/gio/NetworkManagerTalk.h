// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/posix/network/NetworkManager.h"

namespace vell {

class Clock;
class EventLoop;
class LinkWatch;
class NetworkManagerBus;

// The conversation with NetworkManager over a message bus. Each call opens a connection to the bus and closes it again,
// so that nothing lives on between two calls and a bus that was started anew is no special case. Questions wait
// quietly, at most two seconds each; calls that change something let events happen while they wait, and may be nested.
class NetworkManagerTalk : public NetworkManager {
  public:
    // `patience` is how long a change may take.
    NetworkManagerTalk(EventLoop& loop, Clock& clock, std::string busAddress, std::chrono::milliseconds patience);

    [[nodiscard]] std::optional<NetworkState> state() override;
    [[nodiscard]] std::vector<NetworkProfile> profiles() override;
    [[nodiscard]] std::vector<NetworkLink> links() override;
    [[nodiscard]] bool activate(std::string_view profileName) override;
    [[nodiscard]] bool deactivate(std::uint32_t linkNumber) override;
    [[nodiscard]] bool setNetworking(bool on) override;
    void cancelWaits() override { ++cancels_; }
    [[nodiscard]] const std::string& lastReason() const override { return lastReason_; }

  private:
    [[nodiscard]] bool failed(std::string reason);
    [[nodiscard]] bool bringUp(NetworkManagerBus& manager, LinkWatch& watch, const std::string& profilePath);

    EventLoop& loop_;
    Clock& clock_;
    std::string busAddress_;
    std::chrono::milliseconds patience_;
    std::uint64_t cancels_ = 0;
    std::string lastReason_;
};

}  // namespace vell
