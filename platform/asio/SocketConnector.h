// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>

#include "platform/TcpSocket.h"
#include "platform/asio/HostLookup.h"

namespace vell {

// The way from a host's name to a connection. Tries all of the host's addresses in turn.
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

    SocketConnector(asio::io_context& context, Owner& owner) : context_(context), owner_(owner), socket_(context) {}

    void start(const std::string& host, std::uint16_t port, const HostResolver& resolver);
    // At once: the owner is not spoken to again.
    void stop();

  private:
    using Step = void (SocketConnector::*)();

    void later(Step step, int turns);
    void onLookedUp(const HostAddresses& found);
    void tellResolved();
    void tellConnecting();
    void tryNext();
    void onTried(const std::error_code& problem);

    asio::io_context& context_;
    Owner& owner_;
    std::optional<HostLookup> lookup_;
    std::uint16_t port_ = 0;
    std::vector<std::string> addresses_;
    std::size_t next_ = 0;
    std::error_code problem_;  // of the address tried last
    asio::ip::tcp::socket socket_;
    bool stopped_ = false;
};

}  // namespace vell
