// SPDX-License-Identifier: MIT
#include "platform/asio/SocketStream.h"

#include <utility>

#include <asio/buffer.hpp>

#include "platform/asio/SocketNumbers.h"

namespace vell {

using asio::ip::tcp;

namespace {

constexpr std::size_t blockSize = 256UL * 1024;
// Nothing is received while as much lies unread; the peer feels it by TCP's own flow control.
constexpr std::size_t mostUnread = 1024UL * 1024;
// An owner that yields in its handlers is told of new events inside them. Under a fast peer each would go one deeper
// than the last, until the stack ends; so from this depth on nothing new is begun.
constexpr int deepest = 16;

}  // namespace

// Around every word to the owner, who may stop or yield meanwhile; what came to rest at the deepest goes on after it.
class SocketStream::Telling {
  public:
    explicit Telling(SocketStream& stream) : stream_(stream.shared_from_this()) { ++stream_->depth_; }
    ~Telling() {
        --stream_->depth_;
        stream_->goOn();
    }
    Telling(const Telling&) = delete;
    Telling& operator=(const Telling&) = delete;

  private:
    std::shared_ptr<SocketStream> stream_;
};

SocketStream::SocketStream(tcp::socket socket, Owner& owner)
    : socket_(std::move(socket)), owner_(owner), block_(std::make_unique_for_overwrite<char[]>(blockSize)) {}

void SocketStream::start() {
    // A connection that is gone already refuses options; reading tells why.
    std::error_code ignored;
    socket_.set_option(tcp::no_delay(true), ignored);
    socket_.set_option(tcp::socket::keep_alive(true), ignored);
    read();
}

void SocketStream::stop() {
    stopped_ = true;
    dropUnsent();
    std::error_code ignored;
    socket_.close(ignored);
}

void SocketStream::send(std::string_view bytes) {
    if (writeProblem_) return;  // the owner will be told as soon as all that came before is read
    waiting_ += bytes;
    write();
}

std::string SocketStream::take(std::size_t most) {
    std::string bytes = unread_.take(most);
    read();
    return bytes;
}

void SocketStream::goOn() {
    read();
    write();
}

void SocketStream::read() {
    if (stopped_ || reading_ || readEnded_ || depth_ >= deepest || unread_.size() >= mostUnread) return;
    reading_ = true;
    socket_.async_read_some(
        asio::buffer(block_.get(), blockSize),
        [self = shared_from_this()](const std::error_code& problem, std::size_t n) { self->onRead(problem, n); });
}

void SocketStream::onRead(const std::error_code& problem, std::size_t bytes) {
    reading_ = false;
    if (stopped_) return;
    if (problem) {
        onReadEnd(problem);
        return;
    }
    unread_.append({block_.get(), bytes});
    read();
    const Telling telling(*this);
    owner_.onArrived(unread_.size());
}

void SocketStream::onReadEnd(const std::error_code& why) {
    readEnded_ = true;
    if (writeProblem_ || why != asio::error::eof) {
        fail(writeProblem_ ? writeProblem_ : why);
        return;
    }
    const Telling telling(*this);
    owner_.onPeerClosed();
}

void SocketStream::write() {
    if (stopped_ || writing_ || depth_ >= deepest) return;
    if (left_ == leaving_.size()) {
        leaving_ = std::exchange(waiting_, {});
        left_ = 0;
    }
    if (leaving_.empty()) return;
    writing_ = true;
    socket_.async_write_some(
        asio::buffer(leaving_) + left_,
        [self = shared_from_this()](const std::error_code& problem, std::size_t n) { self->onWritten(problem, n); });
}

void SocketStream::onWritten(const std::error_code& problem, std::size_t bytes) {
    writing_ = false;
    if (stopped_) return;
    if (problem) {
        onWriteProblem(problem);
        return;
    }
    left_ += bytes;
    untold_ += bytes;
    if (unsent() != 0) {
        write();
        return;
    }
    const Telling telling(*this);
    owner_.onSent(std::exchange(untold_, 0));
}

// The peer may have said why before it went (a server's last reply): that is heard first, the error told after it.
void SocketStream::onWriteProblem(const std::error_code& problem) {
    dropUnsent();
    if (readEnded_) {
        fail(problem);
        return;
    }
    writeProblem_ = problem;
    std::error_code ignored;
    socket_.shutdown(tcp::socket::shutdown_receive, ignored);
    read();
}

void SocketStream::dropUnsent() {
    waiting_.clear();
    if (!writing_) leaving_.clear();  // else the system may still look at it
    left_ = leaving_.size();
}

void SocketStream::fail(const std::error_code& problem) {
    stop();
    owner_.onFailed(socketError(problem));
}

}  // namespace vell
