// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/errors.h"

namespace vell {

class ConnectionApi;
class MessageBoxes;

// How the machine is on line, and the means to change it. The properties tell what the last Refresh found. A failure
// is a false result; where the system has a number for it, a message box and a log line tell it as well. Unexpected
// errors leave as a RunTimeError whose source names the member.
class CWinInetConnection {
  public:
    CWinInetConnection(ConnectionApi& api, MessageBoxes& boxes, TextLog& log);

    bool SetGlobalOnline();
    bool SetGlobalOffline();
    [[nodiscard]] bool GoOnline(std::string_view url, std::uintptr_t parentWindow);
    // Hangs up what Dial has dialled.
    bool HangUp();
    [[nodiscard]] bool Dial(std::uintptr_t parentWindow, std::string_view connectionName, std::uint32_t flags,
                            bool showOffline);
    void AutodialHangup();
    [[nodiscard]] bool Autodial(std::uintptr_t parentWindow, std::uint32_t flags, bool useFlags);
    void Refresh();

    [[nodiscard]] bool IsConnected() const { return isConnected_; }
    // Always empty: the system is not asked for the name.
    [[nodiscard]] std::string ConnectionName() const { return {}; }
    [[nodiscard]] bool IsConnectionConfigured() const;
    [[nodiscard]] bool IsOffline() const;
    [[nodiscard]] bool IsRasInstalled() const;
    [[nodiscard]] bool UseProxy() const;
    [[nodiscard]] bool UseLAN() const;
    [[nodiscard]] bool UseModem() const;

    // Why the last call failed, where the system said it in words; empty when it did not fail.
    [[nodiscard]] const std::string& failureReason() const { return failureReason_; }

    // The system's text for one of its error codes, as delivered.
    [[nodiscard]] std::string GetWinApiDesc(std::int32_t code) const;

  private:
    [[nodiscard]] std::string GetWinInetDesc(std::int32_t code) const;
    void ReportApiError(std::string_view member);
    // Keeps the reason of a failure that the system gave in words, and logs it; logs also what kept a question that
    // was answered in spite of it from being asked of everybody. Gives `succeeded` back.
    bool withReason(std::string_view member, bool succeeded);

    ConnectionApi& api_;
    MessageBoxes& boxes_;
    TextLog& log_;
    std::string failureReason_;
    bool isConnected_ = false;
    std::uint32_t flags_ = 0;
    std::uint32_t connection_ = 0;  // what Dial got, for HangUp
};

}  // namespace vell
