// SPDX-License-Identifier: MIT
#include "platform/posix/network/systemProxy.h"

#include <arpa/inet.h>
#include <netinet/in.h>

#include "base/text.h"
#include "platform/common/environmentProxy.h"
#include "platform/posix/network/proxyModules.h"
#include "platform/posix/program/desktopServices.h"

namespace vell {

std::optional<std::string> systemProxy(const std::string& address) {
    if (namesProxy()) return std::nullopt;
    if (!canGioNameProxies(VELL_GIO_MODULES)) return std::string();
    DesktopServices* const desktop = desktopServices().Services;
    return desktop == nullptr ? std::string() : desktop->proxyOf(address);
}

std::string configuredProxy() {
    const std::string named = environmentProxy("http://example.com/");
    return named.empty() ? systemProxy("http://example.com/").value_or("") : named;
}

bool isProxyHere(std::string_view proxy) {
    const std::string host(addressHost(proxy));
    in_addr four{};
    in6_addr six{};
    if (inet_pton(AF_INET, host.c_str(), &four) == 1) return (ntohl(four.s_addr) >> 24U) == IN_LOOPBACKNET;
    if (inet_pton(AF_INET6, host.c_str(), &six) == 1) return IN6_IS_ADDR_LOOPBACK(&six) != 0;
    return equalNoCase(host, "localhost");
}

}  // namespace vell
