// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vell {

// How a machine without NetworkManager is judged: by its network interfaces and by a proxy on the machine itself.

struct NetworkInterface {
    std::string Name;
    bool IsUp = false;  // switched on, with a carrier
    bool IsLoopback = false;
    bool HasAddress = false;  // one that reaches further than its own cable
};

// The machine's interfaces; none when the system does not tell.
[[nodiscard]] std::vector<NetworkInterface> networkInterfaces();

// ConnectionApi's flag for the means by which these interfaces are on line: wired and wireless come before dial-up
// links (ppp, mobile, bluetooth), as their routes do. 0 when none is up with an address.
[[nodiscard]] std::uint32_t linkFlag(std::span<const NetworkInterface> interfaces);

// True for a proxy ("http://127.0.0.1:3128", "localhost:8080") that runs on this machine.
[[nodiscard]] bool isProxyHere(std::string_view proxy);
// The proxy that HTTP requests go through, from the environment; empty for none.
[[nodiscard]] std::string configuredProxy();

}  // namespace vell
