// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace vell {

// How a machine without NetworkManager is judged: by its network interfaces.

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

}  // namespace vell
