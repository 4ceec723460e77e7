// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/posix/network/NetworkTypes.h"

namespace vell {

// NetworkManager as the program asks it. Questions are answered within seconds; calls that change something let events
// happen while they wait, and may be nested.
class NetworkManager {
  public:
    static constexpr std::string_view unreachable = "NetworkManager cannot be reached";

    virtual ~NetworkManager() = default;

    // Nothing when NetworkManager does not run or does not answer.
    [[nodiscard]] virtual std::optional<NetworkState> state() = 0;
    [[nodiscard]] virtual std::vector<NetworkProfile> profiles() = 0;
    [[nodiscard]] virtual std::vector<NetworkLink> links() = 0;

    // True when the dial-up profile's link is up. One that is coming up already is waited for, one that does not come
    // up in time is taken down again.
    [[nodiscard]] virtual bool activate(std::string_view profileName) = 0;
    // True when the link is gone, also before the call.
    [[nodiscard]] virtual bool deactivate(std::uint32_t linkNumber) = 0;
    [[nodiscard]] virtual bool setNetworking(bool on) = 0;
    // Ends the waits that are under way.
    virtual void cancelWaits() = 0;

    // Why the last call failed; empty when it did not, or when only a question found no NetworkManager.
    [[nodiscard]] virtual const std::string& lastReason() const = 0;
};

}  // namespace vell
