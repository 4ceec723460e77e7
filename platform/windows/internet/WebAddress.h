// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vell {

// An http or https address in its parts.
struct WebAddress {
    std::wstring Host;
    std::uint16_t Port = 0;
    std::wstring Path;  // with what follows it, but for a fragment
    bool IsSecure = false;

    // Nothing when it is none; `error` then tells why.
    [[nodiscard]] static std::optional<WebAddress> parse(const std::wstring& address, std::int32_t& error);
    // What a reference leads to, seen from here.
    [[nodiscard]] std::optional<WebAddress> seenFromHere(const std::wstring& reference, std::int32_t& error) const;
    [[nodiscard]] bool isSameHost(const WebAddress& other) const;
};

// What an address may not hold as it stands (RFC 3986), given by its bytes; "%" stays, it may be escaped already.
[[nodiscard]] std::wstring escapedAddress(std::string_view address);

}  // namespace vell
