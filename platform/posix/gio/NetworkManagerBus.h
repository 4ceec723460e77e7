// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/posix/gio/BusConnection.h"
#include "platform/posix/network/NetworkTypes.h"

namespace vell {

// What is said to NetworkManager on one connection to the bus, and how its answers read. For platform/posix/gio alone.
class NetworkManagerBus {
  public:
    // The states of a link, by NetworkManager's numbers.
    static constexpr std::uint32_t LinkUnknown = 0;
    static constexpr std::uint32_t LinkActivating = 1;
    static constexpr std::uint32_t LinkActivated = 2;
    static constexpr std::uint32_t LinkDeactivated = 4;

    NetworkManagerBus(EventLoop& loop, Clock& clock) : bus_(loop, clock) {}

    // False when nobody can be talked with; a reason tells why, unless there simply is no bus.
    [[nodiscard]] bool open(const std::string& address, std::string& reason);
    [[nodiscard]] BusConnection& bus() { return bus_; }

    // Nothing when NetworkManager does not run, or, with a reason, when it does not answer.
    [[nodiscard]] std::optional<NetworkState> state(std::string& reason);
    [[nodiscard]] std::vector<NetworkProfile> profiles();
    [[nodiscard]] std::vector<NetworkLink> links();
    // Nothing when NetworkManager does not say.
    [[nodiscard]] std::optional<bool> hasLink(const std::string& linkPath);
    // LinkDeactivated when the link is gone, LinkUnknown when NetworkManager does not say.
    [[nodiscard]] std::uint32_t linkState(const std::string& linkPath);
    [[nodiscard]] static std::string linkPathOf(std::uint32_t number);

    [[nodiscard]] BusConnection::ReplyPtr activate(const std::string& profilePath);  // replies with the link's path
    [[nodiscard]] BusConnection::ReplyPtr deactivate(const std::string& linkPath);
    [[nodiscard]] BusConnection::ReplyPtr enable(bool on);

    [[nodiscard]] static std::string pathIn(const BusConnection::Reply& reply);
    // Why a call was refused, for people.
    [[nodiscard]] static std::string refusal(const BusConnection::Reply& reply);

    // Calls `lost` when NetworkManager leaves the bus, `heard` at each of its signals.
    void watch(std::function<void()> lost, BusConnection::SignalHandler heard);

  private:
    [[nodiscard]] BusConnection::ReplyPtr startGetAll(const std::string& path, const char* interface);
    [[nodiscard]] VariantPtr properties(const std::string& path, const char* interface);
    [[nodiscard]] std::vector<BusConnection::ReplyPtr> waitForAll(std::vector<BusConnection::ReplyPtr> replies);

    BusConnection bus_;
};

}  // namespace vell
