// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include <asio/ip/tcp.hpp>

#include "platform/EventLoop.h"
#include "platform/TcpSocket.h"
#include "platform/asio/HostLookup.h"

namespace vell {

class AsioEventLoop;

// The way from a host's name to a connection. The host's addresses are tried in their order, each with a short head
// start on the next, so that one that never answers does not use up the time of the others; the first that answers is
// taken.
class SocketConnector : public std::enable_shared_from_this<SocketConnector> {
  public:
    class Owner {
      public:
        virtual ~Owner() = default;
        virtual void onProgress(SocketState reached) = 0;
        // Each of these two ends the connector's work.
        virtual void onConnected(asio::ip::tcp::socket socket) = 0;
        virtual void onFailed(const RunTimeError& error) = 0;
    };

    SocketConnector(AsioEventLoop& loop, Owner& owner) : loop_(loop), owner_(owner) {}

    void start(const std::string& host, std::uint16_t port, const HostResolver& resolver);
    // At once: the owner is not spoken to again.
    void stop();

  private:
    using Try = std::shared_ptr<asio::ip::tcp::socket>;

    void onLookedUp(const HostAddresses& found);
    void beginTrying();
    void tryNext();
    [[nodiscard]] bool begin(const std::string& address);
    void onTried(const Try& socket, const std::error_code& problem);
    void endHeadStart();

    AsioEventLoop& loop_;
    Owner& owner_;
    std::optional<HostLookup> lookup_;
    std::uint16_t port_ = 0;
    std::vector<std::string> addresses_;
    std::size_t next_ = 0;
    std::vector<Try> underWay_;
    EventLoop::TimerId headStart_ = 0;
    std::error_code problem_;  // of the address that failed last
    bool stopped_ = false;
};

}  // namespace vell
