// SPDX-License-Identifier: MIT
#include "net/CWinInetConnection.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "base/text.h"
#include "platform/ConnectionApi.h"
#include "platform/MessageBoxes.h"
#include "platform/internetErrors.h"

namespace vell {

namespace {

constexpr std::uint32_t stateConnected = 1;
constexpr std::uint32_t stateDisconnectedByUser = 16;
constexpr std::uint32_t forced = 1;
constexpr std::uint32_t dialShowOffline = 0x4000;

// Runs a member's body; an unexpected error goes on to the caller as one of the object's own.
template <class Body>
auto passingOn(std::string_view member, Body&& body) {
    constexpr std::int64_t objectErrors = -2147221504 + 1000;
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        const RunTimeError error = currentError();
        throw RunTimeError(static_cast<std::int32_t>(error.Number + objectErrors), error.Description,
                           "CWinInetConnection." + std::string(member), error.LastSystemError);
    }
}

}  // namespace

CWinInetConnection::CWinInetConnection(ConnectionApi& api, MessageBoxes& boxes, TextLog& log)
    : api_(api), boxes_(boxes), log_(log) {}

bool CWinInetConnection::SetGlobalOnline() {
    return passingOn("SetGlobalOnline", [&] {
        const bool ok = withReason("SetGlobalOnline", api_.SetConnectedState(stateConnected, 0));
        if (!ok) ReportApiError("SetGlobalOnline");
        return ok;
    });
}

bool CWinInetConnection::SetGlobalOffline() {
    return passingOn("SetGlobalOffline", [&] {
        const bool ok = withReason("SetGlobalOffline", api_.SetConnectedState(stateDisconnectedByUser, forced));
        if (!ok) ReportApiError("SetGlobalOffline");
        return ok;
    });
}

bool CWinInetConnection::GoOnline(std::string_view url, std::uintptr_t parentWindow) {
    return passingOn("GoOnline", [&] {
        const bool ok = withReason("GoOnline", api_.InternetGoOnline(url, parentWindow));
        if (!ok) ReportApiError("GoOnline");
        return ok;
    });
}

bool CWinInetConnection::HangUp() {
    return passingOn("HangUp", [&] { return withReason("HangUp", api_.InternetHangUp(connection_) == 0); });
}

bool CWinInetConnection::Dial(std::uintptr_t parentWindow, std::string_view connectionName, std::uint32_t flags,
                              bool showOffline) {
    return passingOn("Dial", [&] {
        if (showOffline) flags |= dialShowOffline;
        const bool ok = withReason("Dial", api_.InternetDial(parentWindow, connectionName, flags, connection_) == 0);
        if (!ok) ReportApiError("Dial");
        return ok;
    });
}

void CWinInetConnection::AutodialHangup() {
    passingOn("AutodialHangup", [&] { withReason("AutodialHangup", api_.InternetAutodialHangup()); });
}

bool CWinInetConnection::Autodial(std::uintptr_t parentWindow, std::uint32_t flags, bool useFlags) {
    return passingOn("Autodial",
                     [&] { return withReason("Autodial", api_.InternetAutodial(useFlags ? flags : 0, parentWindow)); });
}

void CWinInetConnection::Refresh() {
    passingOn("Refresh", [&] {
        std::uint32_t flags = 0;
        isConnected_ = withReason("Refresh", api_.InternetGetConnectedState(flags));
        flags_ = flags;
        if (!isConnected_) ReportApiError("Refresh");
    });
}

bool CWinInetConnection::IsConnectionConfigured() const {
    return (flags_ & ConnectionApi::Configured) != 0;
}
bool CWinInetConnection::IsOffline() const {
    return (flags_ & ConnectionApi::Offline) != 0;
}
bool CWinInetConnection::IsRasInstalled() const {
    return (flags_ & ConnectionApi::RasInstalled) != 0;
}
bool CWinInetConnection::UseProxy() const {
    return (flags_ & ConnectionApi::Proxy) != 0;
}
bool CWinInetConnection::UseLAN() const {
    return (flags_ & ConnectionApi::Lan) != 0;
}
bool CWinInetConnection::UseModem() const {
    return (flags_ & ConnectionApi::Modem) != 0;
}

std::string CWinInetConnection::GetWinApiDesc(std::int32_t code) const {
    return passingOn("GetWinApiDesc", [&] { return api_.SystemErrorText(code); });
}

std::string CWinInetConnection::GetWinInetDesc(std::int32_t code) const {
    constexpr std::size_t lineEnd = 2;
    std::string text = api_.InternetErrorText(code);
    text.resize(text.size() - std::min(text.size(), lineEnd));
    return text;
}

void CWinInetConnection::ReportApiError(std::string_view member) {
    const std::int32_t code = api_.LastError();
    if (code <= 0) return;
    const bool ofSystem = code < internet_error::First;
    const std::string text = std::string(member) + (ofSystem ? " Win32API Error: " : " WinInet API Error: ") +
                             std::to_string(code) + " [" + (ofSystem ? GetWinApiDesc(code) : GetWinInetDesc(code)) +
                             "]";
    boxes_.Show(text, "Error", Buttons::AbortRetryIgnore, BoxIcon::None);
    log_.WriteLog(text);
}

bool CWinInetConnection::withReason(std::string_view member, bool succeeded) {
    const std::string reason = api_.LastReason();
    failureReason_ = succeeded ? std::string() : reason;
    if (!reason.empty()) log_.WriteLog(std::string(member) + ": " + reason);
    return succeeded;
}

}  // namespace vell
