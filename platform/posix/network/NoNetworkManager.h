// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include "platform/posix/network/NetworkManager.h"

namespace vell {

// Stands where there is none to talk with.
class NoNetworkManager : public NetworkManager {
  public:
    // `problem` says why, where there should be one; empty where there simply is no bus.
    explicit NoNetworkManager(std::string problem) : problem_(std::move(problem)) {}

    [[nodiscard]] std::optional<NetworkState> state() override { return unanswered<std::optional<NetworkState>>(); }
    [[nodiscard]] std::vector<NetworkProfile> profiles() override { return unanswered<std::vector<NetworkProfile>>(); }
    [[nodiscard]] std::vector<NetworkLink> links() override { return unanswered<std::vector<NetworkLink>>(); }
    [[nodiscard]] bool activate(std::string_view /*profileName*/) override { return refused(); }
    [[nodiscard]] bool deactivate(std::uint32_t /*linkNumber*/) override { return refused(); }
    [[nodiscard]] bool setNetworking(bool /*on*/) override { return refused(); }
    void cancelWaits() override {}
    [[nodiscard]] const std::string& lastReason() const override { return lastReason_; }

  private:
    template <class Answer>
    Answer unanswered() {
        lastReason_ = problem_;
        return {};
    }
    bool refused() {
        lastReason_ = problem_.empty() ? unreachable : problem_;
        return false;
    }

    std::string problem_;
    std::string lastReason_;
};

}  // namespace vell
