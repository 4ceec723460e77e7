// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace vell {

// WinInet's numbers for what goes wrong on the way to a server (wininet.h), those that have a cause here. Lower ones
// are the operating system's own.
namespace internet_error {
inline constexpr std::int32_t First = 12001;
inline constexpr std::int32_t Timeout = 12002;
inline constexpr std::int32_t Internal = 12004;
inline constexpr std::int32_t InvalidUrl = 12005;
inline constexpr std::int32_t UnknownScheme = 12006;
inline constexpr std::int32_t NameNotResolved = 12007;
inline constexpr std::int32_t Cancelled = 12017;
inline constexpr std::int32_t CannotConnect = 12029;
inline constexpr std::int32_t ConnectionAborted = 12030;
inline constexpr std::int32_t ConnectionReset = 12031;
inline constexpr std::int32_t CertificateRefused = 12055;
inline constexpr std::int32_t InvalidResponse = 12152;
inline constexpr std::int32_t RedirectFailed = 12156;
inline constexpr std::int32_t SecureChannel = 12157;
inline constexpr std::int32_t Disconnected = 12163;
}  // namespace internet_error

}  // namespace vell
