// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vell {

// Tells by which proxy an address is to be reached: nothing when the HTTP library is to follow the environment, which
// goes before the desktop's setting; else a proxy as curl names them (http://..., socks5h://...), empty for none.
using ProxyChoice = std::function<std::optional<std::string>(const std::string& address)>;

// The environment's, else what the desktop has set.
[[nodiscard]] std::optional<std::string> systemProxy(const std::string& address);

// The proxy that requests to the service go through, for telling how the machine is on line; empty for none.
[[nodiscard]] std::string configuredProxy();
// True for a proxy ("http://127.0.0.1:3128", "localhost:8080") that runs on this machine.
[[nodiscard]] bool isProxyHere(std::string_view proxy);

}  // namespace vell
