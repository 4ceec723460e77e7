// SPDX-License-Identifier: MIT
#include "platform/asio/SocketStream.h"

#include <cstring>
#include <utility>

#include <asio/buffer.hpp>

#include "platform/asio/SocketHandles.h"
#include "platform/asio/SocketNumbers.h"

namespace vell {

using asio::ip::tcp;

namespace {

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

SocketStream::SocketStream(tcp::socket socket, Owner& owner, std::shared_ptr<BlockPool> blocks)
    : socket_(std::move(socket)), owner_(owner), blocks_(std::move(blocks)) {}

SocketStream::~SocketStream() {
    blocks_->give(std::move(arrived_));
    blocks_->give(std::move(incoming_));
}

void SocketStream::start() {
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
    if (!std::exchange(speaks_, true)) beginToSpeak();
    waiting_ += bytes;
    write();
}

// Who only listens, to one file, needs neither of these.
void SocketStream::beginToSpeak() {
    // A connection that is gone already refuses options; reading tells why.
    std::error_code ignored;
    socket_.set_option(tcp::no_delay(true), ignored);
    socket_.set_option(tcp::socket::keep_alive(true), ignored);
}

void SocketStream::acknowledgeNow() {
    if (!stopped_) acknowledgeAtOnce(socket_.native_handle());
}

std::string SocketStream::take(std::size_t most) {
    std::string bytes;
    while (bytes.size() < most && unread() > 0) {
        const auto piece = arrived_.bytes().substr(taken_, most - bytes.size());
        bytes += piece;
        taken_ += piece.size();
        moveUp();
    }
    read();
    return bytes;
}

bool SocketStream::takeBlock(ByteBlock& block) {
    if (unread() == 0) return false;
    if (taken_ > 0) std::memmove(arrived_.room(), arrived_.room() + taken_, arrived_.size() - taken_);
    arrived_.filled(arrived_.size() - taken_);
    std::swap(block, arrived_);
    arrived_.filled(0);
    taken_ = 0;
    moveUp();
    read();
    return true;
}

// Once a block is taken, the next one takes its place.
void SocketStream::moveUp() {
    if (taken_ < arrived_.size() || reading_) return;
    std::swap(arrived_, incoming_);
    incoming_.filled(0);
    taken_ = 0;
}

void SocketStream::goOn() {
    read();
    write();
}

void SocketStream::read() {
    if (stopped_ || reading_ || readEnded_ || depth_ >= deepest || incoming_.size() > 0) return;
    reading_ = true;
    if (!incoming_.hasRoom()) incoming_ = blocks_->take();
    socket_.async_read_some(
        asio::buffer(incoming_.room(), ByteBlock::capacity),
        [self = shared_from_this()](const std::error_code& problem, std::size_t n) { self->onRead(problem, n); });
}

void SocketStream::onRead(const std::error_code& problem, std::size_t bytes) {
    reading_ = false;
    if (stopped_) return;
    if (problem) {
        onReadEnd(problem);
        return;
    }
    incoming_.filled(bytes);
    moveUp();
    read();
    const Telling telling(*this);
    owner_.onArrived(unread());
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
