// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vell {

// What the environment says of proxies, which on every system goes before what the desktop has set.

[[nodiscard]] bool namesProxy();
// The proxy by which an address is to be reached; empty for none.
[[nodiscard]] std::string environmentProxy(std::string_view address);

// "host:port" of a proxy, with that port where it names none; empty for an empty one.
[[nodiscard]] std::string proxyPlace(std::string_view proxy, int usualPort);
// The host of a proxy or another address.
[[nodiscard]] std::string_view addressHost(std::string_view address);

}  // namespace vell
