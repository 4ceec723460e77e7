// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <system_error>

#include <asio/ip/tcp.hpp>

#include "base/ByteQueue.h"
#include "base/errors.h"

namespace vell {

// What goes both ways over a connection that stands.
class SocketStream : public std::enable_shared_from_this<SocketStream> {
  public:
    class Owner {
      public:
        virtual ~Owner() = default;
        virtual void onArrived(std::size_t unread) = 0;
        virtual void onSent(std::size_t bytes) = 0;
        virtual void onPeerClosed() = 0;
        virtual void onFailed(const RunTimeError& error) = 0;
    };

    SocketStream(asio::ip::tcp::socket socket, Owner& owner);

    void start();
    // At once: the owner is not spoken to again. What has arrived can still be taken.
    void stop();

    void send(std::string_view bytes);
    [[nodiscard]] std::string take(std::size_t most);
    [[nodiscard]] std::size_t unread() const { return unread_.size(); }
    [[nodiscard]] std::size_t unsent() const { return leaving_.size() - left_ + waiting_.size(); }

  private:
    class Telling;

    void goOn();
    void read();
    void onRead(const std::error_code& problem, std::size_t bytes);
    void onReadEnd(const std::error_code& why);
    void write();
    void onWritten(const std::error_code& problem, std::size_t bytes);
    void onWriteProblem(const std::error_code& problem);
    void dropUnsent();
    void fail(const std::error_code& problem);

    asio::ip::tcp::socket socket_;
    Owner& owner_;
    bool stopped_ = false;
    int depth_ = 0;  // of the owner's handlers that are running, each but the first inside a yield of another

    std::unique_ptr<char[]> block_;
    ByteQueue unread_;
    bool reading_ = false;
    bool readEnded_ = false;

    std::string leaving_;  // given to the system, `left_` of it taken
    std::size_t left_ = 0;
    std::string waiting_;  // behind it
    std::size_t untold_ = 0;
    bool writing_ = false;
    std::error_code writeProblem_;
};

}  // namespace vell
