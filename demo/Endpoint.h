// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vell::demo {

// Where one side of the service listens.
struct Endpoint {
    std::string Address = "127.0.0.1";  // in numbers; IPv6 without its brackets
    std::uint16_t Port = 0;             // 0: a free one

    [[nodiscard]] bool isLoopback() const;
    [[nodiscard]] bool isIpV4() const;
    // "127.0.0.1:8080", "[::1]:8080".
    [[nodiscard]] std::string text() const;

    // From that form, with "localhost" for 127.0.0.1. Throws std::invalid_argument that says what is wrong.
    [[nodiscard]] static Endpoint parse(std::string_view text);
};

}  // namespace vell::demo
