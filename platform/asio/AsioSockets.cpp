// SPDX-License-Identifier: MIT
#include "platform/asio/AsioSockets.h"

#include <utility>

#include "platform/asio/AsioEventLoop.h"
#include "platform/asio/AsioTcpSocket.h"

namespace vell {

AsioSockets::AsioSockets(AsioEventLoop& loop, HostResolver resolver) : loop_(loop), resolver_(std::move(resolver)) {}

std::unique_ptr<TcpSocket> AsioSockets::Make(TcpSocketEvents& events) {
    return std::make_unique<AsioTcpSocket>(loop_, resolver_, events);
}

}  // namespace vell
