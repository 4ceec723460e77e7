// SPDX-License-Identifier: MIT
#include "platform/common/environmentProxy.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "base/text.h"

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

bool namesProxy() {
    return !environment(httpNames).empty() || !environment(httpsNames).empty();
}

std::string_view addressHost(std::string_view address) {
    const std::string_view place = placeOf(address);
    if (place.starts_with('[')) return place.substr(1, place.find(']') - 1);
    return place.substr(0, place.find(':'));
}

std::string environmentProxy(std::string_view address) {
    if (isException(addressHost(address))) return {};
    if (!address.starts_with("https:")) return environment(httpNames);
    const std::string named = environment(httpsNames);
    return named.empty() ? environment(allNames) : named;
}

std::string proxyPlace(std::string_view proxy, int usualPort) {
    const std::string place(placeOf(proxy));
    const bool namesPort = place.find(':', place.starts_with('[') ? place.find(']') : 0) != std::string::npos;
    return place.empty() || namesPort ? place : place + ":" + std::to_string(usualPort);
}

}  // namespace vell
