// SPDX-License-Identifier: MIT
#include "platform/windows/internet/WebAddress.h"

#include <cwchar>

#include "platform/internetErrors.h"
#include "platform/windows/internetHeaders.h"

namespace vell {

std::optional<WebAddress> WebAddress::parse(const std::wstring& address, std::int32_t& error) {
    URL_COMPONENTSW parts{};
    parts.dwStructSize = sizeof parts;
    parts.dwHostNameLength = parts.dwUrlPathLength = parts.dwExtraInfoLength = 1;  // which asks for them
    if (!InternetCrackUrlW(address.c_str(), static_cast<DWORD>(address.size()), 0, &parts)) {
        error = static_cast<std::int32_t>(GetLastError());
        return std::nullopt;
    }
    const bool isSecure = parts.nScheme == INTERNET_SCHEME_HTTPS;
    if (parts.nScheme != INTERNET_SCHEME_HTTP && !isSecure) {
        error = internet_error::UnknownScheme;
        return std::nullopt;
    }
    if (parts.dwHostNameLength == 0) {
        error = internet_error::InvalidUrl;
        return std::nullopt;
    }
    WebAddress found{{parts.lpszHostName, parts.dwHostNameLength}, parts.nPort, {}, isSecure};
    if (parts.dwUrlPathLength > 0) found.Path.assign(parts.lpszUrlPath, parts.dwUrlPathLength);
    if (parts.dwExtraInfoLength > 0) found.Path.append(parts.lpszExtraInfo, parts.dwExtraInfoLength);
    found.Path.resize(std::min(found.Path.find(L'#'), found.Path.size()));
    if (!found.Path.starts_with(L'/')) found.Path.insert(0, 1, L'/');
    return found;
}

std::optional<WebAddress> WebAddress::seenFromHere(const std::wstring& reference, std::int32_t& error) const {
    const std::wstring here =
        (IsSecure ? L"https://" : L"http://") + Host + L":" + std::to_wstring(unsigned{Port}) + Path;
    std::wstring target(here.size() + reference.size() + 16, L'\0');
    auto length = static_cast<DWORD>(target.size());
    if (!InternetCombineUrlW(here.c_str(), reference.c_str(), target.data(), &length, ICU_NO_ENCODE)) {
        error = static_cast<std::int32_t>(GetLastError());
        return std::nullopt;
    }
    target.resize(length);
    return parse(target, error);
}

bool WebAddress::isSameHost(const WebAddress& other) const {
    return _wcsicmp(Host.c_str(), other.Host.c_str()) == 0;
}

std::wstring escapedAddress(std::string_view address) {
    constexpr std::string_view unsafe = " \"<>\\^`{|}";
    constexpr std::wstring_view hex = L"0123456789ABCDEF";
    std::wstring result;
    for (const char c : address) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte > 32 && byte < 127 && unsafe.find(c) == std::string_view::npos)
            result += static_cast<wchar_t>(byte);
        else
            result.append({L'%', hex[byte >> 4], hex[byte & 15]});
    }
    return result;
}

}  // namespace vell
