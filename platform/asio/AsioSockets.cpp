// SPDX-License-Identifier: MIT
#include "platform/asio/AsioSockets.h"

#include <utility>

#include "platform/asio/AsioEventLoop.h"
#include "platform/asio/AsioTcpSocket.h"
#include "platform/asio/BlockPool.h"

namespace vell {

AsioSockets::AsioSockets(AsioEventLoop& loop, HostResolver resolver)
    : loop_(loop), resolver_(std::move(resolver)), blocks_(std::make_shared<BlockPool>()) {}

std::unique_ptr<TcpSocket> AsioSockets::Make(TcpSocketEvents& events) {
    return std::make_unique<AsioTcpSocket>(loop_, resolver_, blocks_, events);
}

}  // namespace vell
