// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <system_error>

#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>

#include "base/errors.h"

namespace vell {

// Waits at a port of the system's choice for one peer. Whoever else comes before it is turned away, whoever comes
// after it is refused.
class SocketListener : public std::enable_shared_from_this<SocketListener> {
  public:
    class Owner {
      public:
        virtual ~Owner() = default;
        [[nodiscard]] virtual bool letsIn(const asio::ip::address& peer) const = 0;
        // Each of these two ends the listener's work.
        virtual void onPeer(asio::ip::tcp::socket peer, const asio::ip::tcp::endpoint& from) = 0;
        virtual void onFailed(const RunTimeError& error) = 0;
    };

    SocketListener(asio::io_context& context, Owner& owner) : owner_(owner), acceptor_(context) {}

    // Gives where it listens. Raises RunTimeError.
    asio::ip::tcp::endpoint start(const asio::ip::address& local);
    // At once: the owner is not spoken to again.
    void stop();

  private:
    void next();
    void onCame(const std::error_code& problem, asio::ip::tcp::socket peer);

    Owner& owner_;
    asio::ip::tcp::acceptor acceptor_;
    asio::ip::tcp::endpoint from_;  // of who is being let in
    bool stopped_ = false;
};

}  // namespace vell
