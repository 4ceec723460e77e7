// SPDX-License-Identifier: MIT
#include "platform/posix/network/PosixConnection.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <utility>

#include "base/text.h"
#include "platform/internetErrors.h"
#include "platform/posix/network/NetworkManager.h"

namespace vell {

namespace {

constexpr std::uint32_t stateConnected = 1;
constexpr std::uint32_t noConnection = 668;

struct ErrorText {
    std::int32_t Code;
    const char* Text;
};
constexpr std::array<ErrorText, 5> internetErrors{{
    {internet_error::Timeout, "The operation timed out\r\n"},
    {internet_error::NameNotResolved, "The server name or address could not be resolved\r\n"},
    {internet_error::Cancelled, "The operation has been canceled\r\n"},
    {internet_error::CannotConnect, "A connection with the server could not be established\r\n"},
    {internet_error::Disconnected, "The internet connection has been lost\r\n"},
}};

}  // namespace

PosixConnection::PosixConnection(NetworkManager& manager, ProxyInUse proxyInUse, Interfaces interfaces)
    : manager_(manager), proxyInUse_(std::move(proxyInUse)), interfaces_(std::move(interfaces)) {}

bool PosixConnection::InternetGetConnectedState(std::uint32_t& flags) {
    lastError_ = 0;
    const std::string proxy = proxyInUse_();
    flags = proxy.empty() ? 0 : Proxy;
    const auto state = manager_.state();
    const bool online = state ? judge(*state, flags) : judgeInterfaces(flags, proxy);
    if (online) flags |= Configured;
    return online;
}

bool PosixConnection::judge(const NetworkState& state, std::uint32_t& flags) {
    flags |= RasInstalled;
    if (state.NetworkingOff) flags |= Offline;
    if (state.Online) {
        flags |= state.OnDialUp ? Modem : Lan;
        return true;
    }
    // Off line, the flags tell by what means the machine could get on line.
    const auto profiles = manager_.profiles();
    if (!profiles.empty()) flags |= Configured;
    if (std::ranges::any_of(profiles, &NetworkProfile::IsDialUp)) flags |= Modem;
    return false;
}

bool PosixConnection::judgeInterfaces(std::uint32_t& flags, std::string_view proxy) const {
    const std::uint32_t link = linkFlag(interfaces_());
    flags |= link;
    return link != 0 || isProxyHere(proxy);
}

bool PosixConnection::SetConnectedState(std::uint32_t state, std::uint32_t /*flags*/) {
    lastError_ = 0;
    const bool on = state == stateConnected;
    const auto now = manager_.state();
    if (!now) return on;  // a machine without NetworkManager has no such switch
    return now->NetworkingOff != on || manager_.setNetworking(on);
}

bool PosixConnection::InternetGoOnline(std::string_view /*url*/, std::uintptr_t /*parentWindow*/) {
    std::uint32_t flags = 0;
    if (SetConnectedState(stateConnected, 0) && InternetGetConnectedState(flags)) return true;
    lastError_ = internet_error::Disconnected;
    return false;
}

std::uint32_t PosixConnection::InternetDial(std::uintptr_t /*parentWindow*/, std::string_view connectionName,
                                            std::uint32_t /*flags*/, std::uint32_t& connection) {
    lastError_ = 0;
    if (!manager_.activate(connectionName)) return noConnection;
    for (const NetworkLink& link : manager_.links())
        if (link.IsDialUp && Trim(link.Name) == Trim(connectionName)) connection = link.Number + 1;
    return 0;
}

std::uint32_t PosixConnection::InternetHangUp(std::uint32_t connection) {
    lastError_ = 0;
    if (connection == 0) return 0;  // nothing was dialled, so nothing is up
    return manager_.deactivate(connection - 1) ? 0 : noConnection;
}

bool PosixConnection::InternetAutodial(std::uint32_t /*flags*/, std::uintptr_t /*parentWindow*/) {
    std::uint32_t flags = 0;
    if (InternetGetConnectedState(flags)) return true;
    const auto profiles = manager_.profiles();
    const auto first = std::ranges::find_if(profiles, &NetworkProfile::IsDialUp);
    return first != profiles.end() && manager_.activate(first->Name);
}

bool PosixConnection::InternetAutodialHangup() {
    lastError_ = 0;
    const auto links = manager_.links();
    const auto primary =
        std::ranges::find_if(links, [](const NetworkLink& link) { return link.IsDialUp && link.IsPrimary; });
    return primary != links.end() && manager_.deactivate(primary->Number);
}

void PosixConnection::CancelWaits() {
    manager_.cancelWaits();
}

std::string PosixConnection::LastReason() const {
    return manager_.lastReason();
}

std::string PosixConnection::SystemErrorText(std::int32_t code) const {
    return std::generic_category().message(code) + "\r\n";
}

std::string PosixConnection::InternetErrorText(std::int32_t code) const {
    const auto known = std::ranges::find(internetErrors, code, &ErrorText::Code);
    return known == internetErrors.end() ? "Internet error\r\n" : known->Text;
}

}  // namespace vell
