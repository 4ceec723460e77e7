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
// The proxy by which the HTTP library, when it follows the environment, goes to that address; empty for none.
[[nodiscard]] std::string environmentProxy(std::string_view address);
// "host:port" of a proxy as curl names them; where it names no port, the one that curl takes.
[[nodiscard]] std::string proxyPlace(std::string_view proxy);
// True for a proxy ("http://127.0.0.1:3128", "localhost:8080") that runs on this machine.
[[nodiscard]] bool isProxyHere(std::string_view proxy);

}  // namespace vell
