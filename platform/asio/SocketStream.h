// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <system_error>

#include <asio/ip/tcp.hpp>

#include "base/errors.h"
#include "platform/ByteBlock.h"
#include "platform/asio/BlockPool.h"

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

    SocketStream(asio::ip::tcp::socket socket, Owner& owner, std::shared_ptr<BlockPool> blocks);
    ~SocketStream();
    SocketStream(const SocketStream&) = delete;
    SocketStream& operator=(const SocketStream&) = delete;

    void start();
    // At once: the owner is not spoken to again. What has arrived can still be taken.
    void stop();

    void send(std::string_view bytes);
    void acknowledgeNow();
    [[nodiscard]] std::string take(std::size_t most);
    [[nodiscard]] bool takeBlock(ByteBlock& block);
    [[nodiscard]] std::size_t unread() const { return arrived_.size() - taken_ + incoming_.size(); }
    [[nodiscard]] std::size_t unsent() const { return leaving_.size() - left_ + waiting_.size(); }

  private:
    class Telling;

    void beginToSpeak();
    void moveUp();
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
    std::shared_ptr<BlockPool> blocks_;
    bool stopped_ = false;
    bool speaks_ = false;  // has sent something
    int depth_ = 0;        // of the owner's handlers that are running, each but the first inside a yield of another

    // What has arrived and not been taken, and the block that the system fills meanwhile; once that is full, too,
    // nothing is received until the first has been taken, and the peer feels it by TCP's own flow control.
    ByteBlock arrived_;
    std::size_t taken_ = 0;  // of it, at the front
    ByteBlock incoming_;     // empty while the system fills it
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
