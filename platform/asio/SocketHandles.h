// SPDX-License-Identifier: MIT
#pragma once

#include <asio/ip/tcp.hpp>

namespace vell {

// Programs that this one starts do not inherit the socket; it would stay open as long as they run.
void keepFromChildren(asio::ip::tcp::socket::native_handle_type handle);

}  // namespace vell
