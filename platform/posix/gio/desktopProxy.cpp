// SPDX-License-Identifier: MIT
#include "platform/posix/gio/desktopProxy.h"

#include <chrono>
#include <memory>
#include <string_view>

#include "platform/posix/gio/GlibPointers.h"
#include "platform/posix/gio/GlibWait.h"

namespace vell {

namespace {

constexpr std::chrono::seconds patience{3};

using TextsPtr = std::unique_ptr<gchar*, GlibFree<g_strfreev>>;

std::string asCurlNamesIt(std::string_view proxy) {
    if (proxy.starts_with("direct://")) return {};
    // The proxy looks names up itself, as GIO has it do.
    for (const std::string_view socks : {"socks://", "socks5://"})
        if (proxy.starts_with(socks)) return "socks5h://" + std::string(proxy.substr(socks.size()));
    return std::string(proxy);
}

}  // namespace

std::string proxyOf(GProxyResolver* resolver, const std::string& address) {
    GlibWait wait(patience);
    g_proxy_resolver_lookup_async(resolver, address.c_str(), wait.cancellable(), GlibWait::done, &wait);
    const TextsPtr proxies(g_proxy_resolver_lookup_finish(resolver, wait.result(), nullptr));
    return proxies && *proxies ? asCurlNamesIt(*proxies.get()) : std::string();
}

}  // namespace vell
