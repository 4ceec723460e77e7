// SPDX-License-Identifier: MIT
#include "platform/posix/network/NetworkInterfaces.h"

#include <algorithm>
#include <array>
#include <memory>

#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>

#include "platform/ConnectionApi.h"

namespace vell {

namespace {

// Link-local addresses (RFC 3927, RFC 4291) come up by themselves on a cable that leads nowhere.
bool reachesFurther(const sockaddr* address) {
    if (address == nullptr) return false;
    if (address->sa_family == AF_INET) {
        const auto host = ntohl(reinterpret_cast<const sockaddr_in*>(address)->sin_addr.s_addr);
        return (host & 0xFFFF0000U) != 0xA9FE0000U;
    }
    if (address->sa_family == AF_INET6)
        return IN6_IS_ADDR_LINKLOCAL(&reinterpret_cast<const sockaddr_in6*>(address)->sin6_addr) == 0;
    return false;
}

bool isDialUpName(std::string_view name) {
    constexpr std::array<std::string_view, 3> prefixes{"ppp", "wwan", "bnep"};
    return std::ranges::any_of(prefixes, [&](std::string_view prefix) { return name.starts_with(prefix); });
}

}  // namespace

std::vector<NetworkInterface> networkInterfaces() {
    ifaddrs* first = nullptr;
    if (getifaddrs(&first) != 0) return {};
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> owner(first, freeifaddrs);
    std::vector<NetworkInterface> all;
    for (const ifaddrs* one = first; one != nullptr; one = one->ifa_next) {
        constexpr unsigned up = IFF_UP | IFF_RUNNING;
        all.push_back({one->ifa_name, (one->ifa_flags & up) == up, (one->ifa_flags & IFF_LOOPBACK) != 0,
                       reachesFurther(one->ifa_addr)});
    }
    return all;
}

std::uint32_t linkFlag(std::span<const NetworkInterface> interfaces) {
    std::uint32_t flag = 0;
    for (const NetworkInterface& one : interfaces) {
        if (!one.IsUp || one.IsLoopback || !one.HasAddress) continue;
        if (!isDialUpName(one.Name)) return ConnectionApi::Lan;
        flag = ConnectionApi::Modem;
    }
    return flag;
}

}  // namespace vell
