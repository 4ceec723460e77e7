// SPDX-License-Identifier: MIT
#include "platform/asio/SocketConnector.h"

#include <utility>

#include <asio/post.hpp>

#include "platform/asio/AsioEventLoop.h"
#include "platform/asio/SocketHandles.h"
#include "platform/asio/SocketNumbers.h"

namespace vell {

using asio::ip::tcp;

namespace {

// Longer than a good line takes to answer; short enough for every address of a host to have its turn in a time-out.
constexpr int headStartMilliseconds = 250;

}  // namespace

void SocketConnector::start(const std::string& host, std::uint16_t port, const HostResolver& resolver) {
    port_ = port;
    std::error_code isName;
    asio::ip::make_address(host, isName);
    if (!isName && host.find('\0') == std::string::npos) {
        asio::post(loop_.context(), [self = shared_from_this(), host] {
            if (!self->stopped_) self->onLookedUp({{host}, std::nullopt});
        });
        return;
    }
    lookup_.emplace(loop_.context(), host, resolver, [weak = weak_from_this()](const HostAddresses& found) {
        if (const auto self = weak.lock()) self->onLookedUp(found);
    });
}

void SocketConnector::stop() {
    stopped_ = true;
    lookup_.reset();
    endHeadStart();
    std::error_code ignored;
    for (const Try& socket : std::exchange(underWay_, {}))
        socket->close(ignored);
}

void SocketConnector::onLookedUp(const HostAddresses& found) {
    if (found.Problem) {
        owner_.onFailed(*found.Problem);
        return;
    }
    addresses_ = found.Numeric;
    owner_.onProgress(SocketState::HostResolved);
    asio::post(loop_.context(), [self = shared_from_this()] {
        if (!self->stopped_) self->beginTrying();
    });
}

void SocketConnector::beginTrying() {
    owner_.onProgress(SocketState::Connecting);
    tryNext();
}

void SocketConnector::tryNext() {
    endHeadStart();
    while (next_ < addresses_.size()) {
        if (!begin(addresses_[next_++])) continue;
        if (next_ < addresses_.size())
            headStart_ = loop_.SetTimer(headStartMilliseconds, [weak = weak_from_this()] {
                if (const auto self = weak.lock()) self->tryNext();
            });
        return;
    }
    if (underWay_.empty()) owner_.onFailed(problem_ ? socketError(problem_) : socketError(socket_number::HostNotFound));
}

bool SocketConnector::begin(const std::string& address) {
    const tcp::endpoint peer(asio::ip::make_address(address, problem_), port_);
    if (problem_) return false;
    const auto socket = std::make_shared<tcp::socket>(loop_.context());
    socket->open(peer.protocol(), problem_);
    if (problem_) return false;
    keepFromChildren(socket->native_handle());
    underWay_.push_back(socket);
    socket->async_connect(peer, [self = shared_from_this(), socket](const std::error_code& problem) {
        if (!self->stopped_) self->onTried(socket, problem);
    });
    return true;
}

void SocketConnector::onTried(const Try& socket, const std::error_code& problem) {
    std::erase(underWay_, socket);
    if (!problem) {
        stop();
        owner_.onConnected(std::move(*socket));
        return;
    }
    problem_ = problem;
    tryNext();
}

void SocketConnector::endHeadStart() {
    if (headStart_ != 0) loop_.KillTimer(std::exchange(headStart_, 0));
}

}  // namespace vell
