// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/posix/network/NetworkTypes.h"

namespace vell {

class Clock;
class EventLoop;
class LinkWatch;
class NetworkManagerBus;

// The conversation with NetworkManager over the system's message bus. Each call opens a connection to the bus and
// closes it again, so that nothing lives on between two calls and a bus that was started anew is no special case.
// Questions wait quietly, at most two seconds each; calls that change something let events happen while they wait, and
// may be nested.
class NetworkManagerClient {
  public:
    static constexpr std::chrono::milliseconds dialPatience{60000};

    // An empty bus address means the system's bus. `patience` is how long a change may take.
    NetworkManagerClient(EventLoop& loop, Clock& clock, std::string busAddress,
                         std::chrono::milliseconds patience = dialPatience);

    // Nothing when NetworkManager does not run or does not answer.
    [[nodiscard]] std::optional<NetworkState> state();
    [[nodiscard]] std::vector<NetworkProfile> profiles();
    [[nodiscard]] std::vector<NetworkLink> links();

    // True when the dial-up profile's link is up. One that is coming up already is waited for, one that does not come
    // up in time is taken down again.
    [[nodiscard]] bool activate(std::string_view profileName);
    // True when the link is gone, also before the call.
    [[nodiscard]] bool deactivate(std::uint32_t linkNumber);
    [[nodiscard]] bool setNetworking(bool on);
    // Ends the waits that are under way.
    void cancelWaits() { ++cancels_; }

    // Why the last call failed; empty when it did not, or when only a question found no NetworkManager.
    [[nodiscard]] const std::string& lastReason() const { return lastReason_; }

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
