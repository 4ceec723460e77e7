// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vell {

// The operating system's calls that tell and change how the machine is on line, as WinInet has them.
class ConnectionApi {
  public:
    virtual ~ConnectionApi() = default;

    // Bits of the connected state.
    static constexpr std::uint32_t Modem = 1;
    static constexpr std::uint32_t Lan = 2;
    static constexpr std::uint32_t Proxy = 4;
    static constexpr std::uint32_t RasInstalled = 16;
    static constexpr std::uint32_t Offline = 32;
    static constexpr std::uint32_t Configured = 64;

    // True when the machine is on line. The flags are filled in any case.
    virtual bool InternetGetConnectedState(std::uint32_t& flags) = 0;
    // Option 50, connected state: {1, 0} for on line, {16, 1} for off line by the user's wish.
    virtual bool SetConnectedState(std::uint32_t state, std::uint32_t flags) = 0;
    virtual bool InternetGoOnline(std::string_view url, std::uintptr_t parentWindow) = 0;
    // 0 on success, else the error. Waits for the outcome and lets events happen meanwhile.
    virtual std::uint32_t InternetDial(std::uintptr_t parentWindow, std::string_view connectionName,
                                       std::uint32_t flags, std::uint32_t& connection) = 0;
    // 0 on success. This and the next two wait for the outcome like InternetDial.
    virtual std::uint32_t InternetHangUp(std::uint32_t connection) = 0;
    virtual bool InternetAutodial(std::uint32_t flags, std::uintptr_t parentWindow) = 0;
    virtual bool InternetAutodialHangup() = 0;
    // Makes the calls that wait end at once, as failed; a dial does not stay half done. To be called from the events
    // that happen meanwhile. Later calls are not concerned.
    virtual void CancelWaits() = 0;

    // The number of the last failure, below internet_error::First the operating system's; 0 when the system reported
    // none.
    [[nodiscard]] virtual std::int32_t LastError() const = 0;
    // Why the last call failed, where the system tells it in words and not by a number, or who could not be asked for
    // it; empty otherwise.
    [[nodiscard]] virtual std::string LastReason() const = 0;
    // The system's text for one of its own errors, and the internet library's for an internet_error. Both as
    // delivered, the line end included.
    [[nodiscard]] virtual std::string SystemErrorText(std::int32_t code) const = 0;
    [[nodiscard]] virtual std::string InternetErrorText(std::int32_t code) const = 0;
};

}  // namespace vell
