// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>

#include "platform/posix/network/NetworkManager.h"

namespace vell {

class Clock;
class EventLoop;

// Looks whether there is a message bus before each call, and only then has the libraries loaded that talk on it.
class NetworkManagerClient : public NetworkManager {
  public:
    static constexpr std::chrono::milliseconds dialPatience{60000};

    // An empty bus address means the system's bus. `patience` is how long a change may take.
    NetworkManagerClient(EventLoop& loop, Clock& clock, std::string busAddress,
                         std::chrono::milliseconds patience = dialPatience);

    [[nodiscard]] std::optional<NetworkState> state() override { return asked().state(); }
    [[nodiscard]] std::vector<NetworkProfile> profiles() override { return asked().profiles(); }
    [[nodiscard]] std::vector<NetworkLink> links() override { return asked().links(); }
    [[nodiscard]] bool activate(std::string_view profileName) override { return asked().activate(profileName); }
    [[nodiscard]] bool deactivate(std::uint32_t linkNumber) override { return asked().deactivate(linkNumber); }
    [[nodiscard]] bool setNetworking(bool on) override { return asked().setNetworking(on); }
    void cancelWaits() override;
    [[nodiscard]] const std::string& lastReason() const override { return asked_->lastReason(); }

  private:
    [[nodiscard]] NetworkManager& asked();
    void load();

    EventLoop& loop_;
    Clock& clock_;
    std::string busAddress_;
    std::chrono::milliseconds patience_;
    std::unique_ptr<NetworkManager> nobody_;
    std::unique_ptr<NetworkManager> talk_;  // once there was a bus
    NetworkManager* asked_;                 // by the last call
};

}  // namespace vell
