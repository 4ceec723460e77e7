// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ConnectionApi.h"
#include "platform/windows/network/Dialling.h"

namespace vell {

// WinINet's own calls.
class WindowsConnection : public ConnectionApi {
  public:
    explicit WindowsConnection(EventLoop& loop) : dialling_(loop) {}

    bool InternetGetConnectedState(std::uint32_t& flags) override;
    bool SetConnectedState(std::uint32_t state, std::uint32_t flags) override;
    bool InternetGoOnline(std::string_view url, std::uintptr_t parentWindow) override;
    std::uint32_t InternetDial(std::uintptr_t parentWindow, std::string_view connectionName, std::uint32_t flags,
                               std::uint32_t& connection) override;
    std::uint32_t InternetHangUp(std::uint32_t connection) override;
    bool InternetAutodial(std::uint32_t flags, std::uintptr_t parentWindow) override;
    bool InternetAutodialHangup() override;
    void CancelWaits() override { dialling_.cancel(); }
    [[nodiscard]] std::int32_t LastError() const override { return lastError_; }
    // WinINet tells by numbers alone.
    [[nodiscard]] std::string LastReason() const override { return {}; }
    [[nodiscard]] std::string SystemErrorText(std::int32_t code) const override;
    [[nodiscard]] std::string InternetErrorText(std::int32_t code) const override;

  private:
    bool noted(bool succeeded);
    // Of a call that gives its error: 0 for success.
    bool notedError(std::uint32_t error);

    Dialling dialling_;
    std::int32_t lastError_ = 0;
};

}  // namespace vell
