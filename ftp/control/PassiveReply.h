// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vell {

struct PassiveAddress {
    std::string Host;
    std::uint16_t Port = 0;
};

// Reads "227 Entering Passive Mode (10,0,0,5,19,137)": host 10.0.0.5, port 19 * 256 + 137. Nothing unless six numbers
// from 0 to 255 stand between the brackets and make a port.
[[nodiscard]] std::optional<PassiveAddress> parsePassiveReply(std::string_view reply);

}  // namespace vell
