// SPDX-License-Identifier: MIT
#pragma once

#include <asio/ip/tcp.hpp>

namespace vell {

// Programs that this one starts do not inherit the socket; it would stay open as long as they run.
void keepFromChildren(asio::ip::tcp::socket::native_handle_type handle);

// What has come is acknowledged now, where the system can be told so. It has to be told after each read.
void acknowledgeAtOnce(asio::ip::tcp::socket::native_handle_type handle);

}  // namespace vell
