// SPDX-License-Identifier: MIT
#pragma once

#include "platform/TcpSocket.h"
#include "platform/asio/HostLookup.h"

namespace vell {

class AsioEventLoop;
class BlockPool;

// Sockets on the loop's context. The loop must outlive them.
class AsioSockets : public Sockets {
  public:
    explicit AsioSockets(AsioEventLoop& loop, HostResolver resolver = resolveBySystem);

    [[nodiscard]] std::unique_ptr<TcpSocket> Make(TcpSocketEvents& events) override;

  private:
    AsioEventLoop& loop_;
    HostResolver resolver_;
    std::shared_ptr<BlockPool> blocks_;
};

}  // namespace vell
