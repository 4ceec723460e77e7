// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vell {

class InternetHandle;
struct WebAddress;

// What the environment says of a proxy for http, in the form in which WinINet wants it; both empty when it says
// nothing, and then WinINet's own settings hold.
struct SessionProxy {
    std::wstring Servers;
    std::wstring Exceptions;

    [[nodiscard]] static SessionProxy fromEnvironment();
};

// "host:port" of the proxy by which a session reaches an address; empty for none.
[[nodiscard]] std::string proxyOf(const InternetHandle& session, const WebAddress& address);

}  // namespace vell
