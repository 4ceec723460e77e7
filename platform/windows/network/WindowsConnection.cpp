// SPDX-License-Identifier: MIT
#include "platform/windows/network/WindowsConnection.h"

#include <array>
#include <memory>

#include "platform/windows/internetHeaders.h"
#include "platform/windows/systemText.h"

namespace vell {

namespace {

// ERROR_USER_DISCONNECTION of the remote access service.
constexpr std::uint32_t cancelled = 631;

HWND windowOf(std::uintptr_t parentWindow) {
    return reinterpret_cast<HWND>(parentWindow);
}

// The error of a call that gives a truth.
std::uint32_t errorOf(BOOL succeeded) {
    return succeeded ? 0 : GetLastError();
}

}  // namespace

bool WindowsConnection::InternetGetConnectedState(std::uint32_t& flags) {
    DWORD state = 0;
    std::array<wchar_t, 260> name{};
    const bool isOnline = InternetGetConnectedStateExW(&state, name.data(), static_cast<DWORD>(name.size()), 0) != 0;
    flags = state;
    // That the machine is off line is an answer, not a failure.
    lastError_ = 0;
    return isOnline;
}

bool WindowsConnection::SetConnectedState(std::uint32_t state, std::uint32_t flags) {
    INTERNET_CONNECTED_INFO info{state, flags};
    return noted(InternetSetOptionW(nullptr, INTERNET_OPTION_CONNECTED_STATE, &info, sizeof info) != 0);
}

bool WindowsConnection::InternetGoOnline(std::string_view url, std::uintptr_t parentWindow) {
    std::wstring address = wideFromCodePage(url);
    return noted(InternetGoOnlineW(address.data(), windowOf(parentWindow), 0) != 0);
}

std::uint32_t WindowsConnection::InternetDial(std::uintptr_t parentWindow, std::string_view connectionName,
                                              std::uint32_t flags, std::uint32_t& connection) {
    lastError_ = 0;
    const auto handle = std::make_shared<DWORD_PTR>(0);
    const auto dial = [=, name = wideFromCodePage(connectionName)]() mutable {
        return std::uint32_t{InternetDialW(windowOf(parentWindow), name.data(), flags, handle.get(), 0)};
    };
    const auto hangUp = [=](std::uint32_t error) {
        if (error == 0) ::InternetHangUp(*handle, 0);
    };
    const std::uint32_t error = dialling_.wait(dial, cancelled, hangUp);
    if (error == 0) connection = static_cast<std::uint32_t>(*handle);
    return error;
}

std::uint32_t WindowsConnection::InternetHangUp(std::uint32_t connection) {
    lastError_ = 0;
    if (connection == 0) return 0;  // nothing was dialled, so nothing is up
    return dialling_.wait([=] { return std::uint32_t{::InternetHangUp(connection, 0)}; }, cancelled);
}

bool WindowsConnection::InternetAutodial(std::uint32_t flags, std::uintptr_t parentWindow) {
    return notedError(dialling_.wait([=] { return errorOf(::InternetAutodial(flags, windowOf(parentWindow))); },
                                     cancelled,
                                     [](std::uint32_t error) {
                                         if (error == 0) ::InternetAutodialHangup(0);
                                     }));
}

bool WindowsConnection::InternetAutodialHangup() {
    return notedError(dialling_.wait([] { return errorOf(::InternetAutodialHangup(0)); }, cancelled));
}

bool WindowsConnection::noted(bool succeeded) {
    return notedError(errorOf(succeeded));
}

bool WindowsConnection::notedError(std::uint32_t error) {
    lastError_ = static_cast<std::int32_t>(error);
    return error == 0;
}

std::string WindowsConnection::SystemErrorText(std::int32_t code) const {
    return systemMessage(static_cast<std::uint32_t>(code));
}

std::string WindowsConnection::InternetErrorText(std::int32_t code) const {
    return systemMessage(static_cast<std::uint32_t>(code), L"wininet.dll");
}

}  // namespace vell
