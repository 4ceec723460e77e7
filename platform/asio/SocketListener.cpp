// SPDX-License-Identifier: MIT
#include "platform/asio/SocketListener.h"

#include <utility>

#include "platform/asio/SocketHandles.h"
#include "platform/asio/SocketNumbers.h"

namespace vell {

using asio::ip::tcp;

tcp::endpoint SocketListener::start(const asio::ip::address& local) {
    try {
        const tcp::endpoint anyPort(local, 0);
        acceptor_.open(anyPort.protocol());
        keepFromChildren(acceptor_.native_handle());
        acceptor_.bind(anyPort);
        acceptor_.listen();
        next();
        return acceptor_.local_endpoint();
    } catch (const std::system_error& error) {
        throw socketError(error.code());
    }
}

void SocketListener::stop() {
    stopped_ = true;
    std::error_code ignored;
    acceptor_.close(ignored);
}

void SocketListener::next() {
    acceptor_.async_accept(from_, [self = shared_from_this()](const std::error_code& problem, tcp::socket peer) {
        if (!self->stopped_) self->onCame(problem, std::move(peer));
    });
}

void SocketListener::onCame(const std::error_code& problem, tcp::socket peer) {
    if (problem && problem != asio::error::connection_aborted) {
        stop();
        owner_.onFailed(socketError(problem));
        return;
    }
    if (problem || !owner_.letsIn(from_.address())) {
        next();
        return;
    }
    stop();
    keepFromChildren(peer.native_handle());
    owner_.onPeer(std::move(peer), from_);
}

}  // namespace vell
