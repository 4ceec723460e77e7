// SPDX-License-Identifier: MIT
#include "platform/windows/internet/sessionProxy.h"

#include <vector>

#include "base/text.h"
#include "platform/common/environmentProxy.h"
#include "platform/windows/internet/InternetHandle.h"
#include "platform/windows/internet/WebAddress.h"
#include "platform/windows/internetHeaders.h"
#include "platform/windows/systemText.h"

namespace vell {

namespace {

constexpr int usualProxyPort = 80;  // which WinINet takes
constexpr std::string_view anywhere = "//proxied.invalid/";

// WinINet's own setting: one proxy for everything, or "http=host:port;https=host:port".
std::string setting(const InternetHandle& session, const char* scheme) {
    DWORD length = 0;
    InternetQueryOptionW(session.get(), INTERNET_OPTION_PROXY, nullptr, &length);
    std::vector<wchar_t> bytes(length / sizeof(wchar_t) + 1);
    if (length == 0 || !InternetQueryOptionW(session.get(), INTERNET_OPTION_PROXY, bytes.data(), &length)) return {};
    const auto* info = reinterpret_cast<const INTERNET_PROXY_INFO*>(bytes.data());
    if (info->dwAccessType != INTERNET_OPEN_TYPE_PROXY || info->lpszProxy == nullptr) return {};
    const std::string all = utf8FromWide(reinterpret_cast<const wchar_t*>(info->lpszProxy));
    const std::string listed = Replace(all, " ", ";");
    for (const std::string_view one : Split(listed, ";")) {
        const auto equals = one.find('=');
        if (equals == std::string_view::npos) return std::string(one);
        if (equalNoCase(one.substr(0, equals), scheme)) return std::string(one.substr(equals + 1));
    }
    return {};
}

}  // namespace

SessionProxy SessionProxy::fromEnvironment() {
    std::string servers, exceptions;
    for (const std::string scheme : {"http", "https"})
        if (const auto proxy = environmentProxy(scheme + ':' + std::string(anywhere)); !proxy.empty())
            servers += (servers.empty() ? "" : " ") + scheme + "=" + proxyPlace(proxy, usualProxyPort);
    const std::string named = Replace(environmentVariable(L"no_proxy"), " ", ",");
    for (std::string_view name : Split(named, ",")) {
        if (name.starts_with('.')) name.remove_prefix(1);
        if (!name.empty()) exceptions.append(name).append(";*.").append(name).append(";");
    }
    return {wideFromUtf8(servers), servers.empty() ? std::wstring() : wideFromUtf8(exceptions)};
}

std::string proxyOf(const InternetHandle& session, const WebAddress& address) {
    const std::string scheme = address.IsSecure ? "https" : "http";
    if (!namesProxy()) return proxyPlace(setting(session, scheme.c_str()), usualProxyPort);
    return proxyPlace(environmentProxy(scheme + "://" + utf8FromWide(address.Host)), usualProxyPort);
}

}  // namespace vell
