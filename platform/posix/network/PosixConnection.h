// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/ConnectionApi.h"
#include "platform/posix/network/NetworkInterfaces.h"
#include "platform/posix/network/systemProxy.h"

namespace vell {

class NetworkManager;
struct NetworkState;

// NetworkManager's word where it runs; else the machine's interfaces, and then nothing can be dialled or hung up. A
// dial-up connection is one of NetworkManager's ppp, gsm or bluetooth profiles, and its handle is the number of the
// link plus one. Failures to dial and to hang up have a reason and no error number: a scheduled run must not stand
// before a message box that nobody sees.
class PosixConnection : public ConnectionApi {
  public:
    using Interfaces = std::function<std::vector<NetworkInterface>()>;
    using ProxyInUse = std::function<std::string()>;

    // `proxyInUse` tells what HTTP requests go through, empty for none.
    explicit PosixConnection(NetworkManager& manager, ProxyInUse proxyInUse = configuredProxy,
                             Interfaces interfaces = networkInterfaces);

    bool InternetGetConnectedState(std::uint32_t& flags) override;
    bool SetConnectedState(std::uint32_t state, std::uint32_t flags) override;
    bool InternetGoOnline(std::string_view url, std::uintptr_t parentWindow) override;
    std::uint32_t InternetDial(std::uintptr_t parentWindow, std::string_view connectionName, std::uint32_t flags,
                               std::uint32_t& connection) override;
    std::uint32_t InternetHangUp(std::uint32_t connection) override;
    bool InternetAutodial(std::uint32_t flags, std::uintptr_t parentWindow) override;
    bool InternetAutodialHangup() override;
    void CancelWaits() override;
    [[nodiscard]] std::int32_t LastError() const override { return lastError_; }
    [[nodiscard]] std::string LastReason() const override;
    [[nodiscard]] std::string SystemErrorText(std::int32_t code) const override;
    [[nodiscard]] std::string InternetErrorText(std::int32_t code) const override;

  private:
    bool judge(const NetworkState& state, std::uint32_t& flags);
    bool judgeInterfaces(std::uint32_t& flags, std::string_view proxy) const;

    NetworkManager& manager_;
    ProxyInUse proxyInUse_;
    Interfaces interfaces_;
    std::int32_t lastError_ = 0;
};

}  // namespace vell
