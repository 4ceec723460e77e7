// SPDX-License-Identifier: MIT
#include "platform/posix/network/systemProxy.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include <arpa/inet.h>
#include <netinet/in.h>

#include "base/text.h"
#include "platform/posix/network/proxyModules.h"
#include "platform/posix/program/desktopServices.h"

namespace vell {

namespace {

// What the environment says for one of these names; empty when it says nothing.
template <std::size_t Count>
std::string environment(const std::array<const char*, Count>& names) {
    for (const char* name : names)
        if (const char* value = std::getenv(name); value != nullptr && *value != '\0') return value;
    return {};
}

// The names that the HTTP library looks at. It leaves HTTP_PROXY out on purpose: a CGI program gets that from whoever
// sends a "Proxy:" header.
constexpr std::array httpNames{"http_proxy", "all_proxy", "ALL_PROXY"};
constexpr std::array httpsNames{"https_proxy", "HTTPS_PROXY"};
constexpr std::array allNames{"all_proxy", "ALL_PROXY"};
constexpr std::array exceptionNames{"no_proxy", "NO_PROXY"};

// Host and port, without what stands around them.
std::string_view placeOf(std::string_view address) {
    if (const auto scheme = address.find("://"); scheme != std::string_view::npos) address.remove_prefix(scheme + 3);
    address = address.substr(0, address.find('/'));
    if (const auto user = address.rfind('@'); user != std::string_view::npos) address.remove_prefix(user + 1);
    return address;
}

std::string_view hostOf(std::string_view address) {
    const std::string_view place = placeOf(address);
    if (place.starts_with('[')) return place.substr(1, place.find(']') - 1);
    return place.substr(0, place.find(':'));
}

// Is that host, or a domain that it belongs to, among the environment's exceptions?
bool isException(std::string_view host) {
    std::string names = environment(exceptionNames);
    std::ranges::replace(names, ' ', ',');
    for (std::string_view name : Split(names, ",")) {
        if (name == "*") return true;
        if (name.starts_with('.')) name.remove_prefix(1);
        if (name.empty() || name.size() > host.size()) continue;
        const std::string_view before = host.substr(0, host.size() - name.size());
        if (equalNoCase(host.substr(before.size()), name) && (before.empty() || before.ends_with('.'))) return true;
    }
    return false;
}

}  // namespace

std::optional<std::string> systemProxy(const std::string& address) {
    if (!environment(httpNames).empty() || !environment(httpsNames).empty()) return std::nullopt;
    if (!canGioNameProxies(VELL_GIO_MODULES)) return std::string();
    DesktopServices* const desktop = desktopServices().Services;
    return desktop == nullptr ? std::string() : desktop->proxyOf(address);
}

std::string configuredProxy() {
    const std::string named = environment(httpNames);
    return named.empty() ? systemProxy("http://example.com/").value_or("") : named;
}

std::string environmentProxy(std::string_view address) {
    if (isException(hostOf(address))) return {};
    if (!address.starts_with("https:")) return environment(httpNames);
    const std::string named = environment(httpsNames);
    return named.empty() ? environment(allNames) : named;
}

std::string proxyPlace(std::string_view proxy) {
    const std::string place(placeOf(proxy));
    const bool namesPort = place.find(':', place.starts_with('[') ? place.find(']') : 0) != std::string::npos;
    return place.empty() || namesPort ? place : place + ":1080";
}

bool isProxyHere(std::string_view proxy) {
    const std::string host(hostOf(proxy));
    in_addr four{};
    in6_addr six{};
    if (inet_pton(AF_INET, host.c_str(), &four) == 1) return (ntohl(four.s_addr) >> 24U) == IN_LOOPBACKNET;
    if (inet_pton(AF_INET6, host.c_str(), &six) == 1) return IN6_IS_ADDR_LOOPBACK(&six) != 0;
    return equalNoCase(host, "localhost");
}

}  // namespace vell
