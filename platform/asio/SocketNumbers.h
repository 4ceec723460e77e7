// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <system_error>

#include "base/errors.h"

namespace vell {

// The socket component's errors: Winsock's numbers on every system, and two of its own.
namespace socket_number {
inline constexpr std::int32_t AddressNotAvailable = 10049;
inline constexpr std::int32_t NetworkDown = 10050;
inline constexpr std::int32_t HostNotFound = 11001;
inline constexpr std::int32_t HostNotFoundTryAgain = 11002;
inline constexpr std::int32_t BadState = 40006;   // sending or receiving without a connection
inline constexpr std::int32_t InvalidOp = 40020;  // starting something in the middle of something else
}  // namespace socket_number

[[nodiscard]] RunTimeError socketError(std::int32_t number);
// The system's own error, as Asio tells it.
[[nodiscard]] RunTimeError socketError(const std::error_code& code);

}  // namespace vell
