// SPDX-License-Identifier: MIT
#include "platform/asio/SocketConnector.h"

#include <utility>

#include <asio/post.hpp>

#include "platform/asio/SocketHandles.h"
#include "platform/asio/SocketNumbers.h"

namespace vell {

using asio::ip::tcp;

namespace {

// Each state lasts for this many turns of the context's queue. One wait and one yield of the event loop take at most
// seven, so that whoever looks at the state between them sees every one, however fast the answers come.
constexpr int turnsOfAState = 8;

}  // namespace

void SocketConnector::start(const std::string& host, std::uint16_t port, const HostResolver& resolver) {
    port_ = port;
    std::error_code isName;
    asio::ip::make_address(host, isName);
    if (!isName && host.find('\0') == std::string::npos) {
        addresses_ = {host};
        later(&SocketConnector::tellResolved, turnsOfAState);
        return;
    }
    lookup_.emplace(context_, host, resolver, [weak = weak_from_this()](const HostAddresses& found) {
        if (const auto self = weak.lock()) self->onLookedUp(found);
    });
}

void SocketConnector::stop() {
    stopped_ = true;
    lookup_.reset();
    std::error_code ignored;
    socket_.close(ignored);
}

void SocketConnector::later(Step step, int turns) {
    asio::post(context_, [self = shared_from_this(), step, turns] {
        if (self->stopped_) return;
        if (turns > 1) {
            self->later(step, turns - 1);
        } else {
            (*self.*step)();
        }
    });
}

void SocketConnector::onLookedUp(const HostAddresses& found) {
    if (found.Problem) {
        owner_.onFailed(*found.Problem);
        return;
    }
    addresses_ = found.Numeric;
    later(&SocketConnector::tellResolved, turnsOfAState);
}

void SocketConnector::tellResolved() {
    owner_.onProgress(SocketState::HostResolved);
    later(&SocketConnector::tellConnecting, turnsOfAState);
}

void SocketConnector::tellConnecting() {
    owner_.onProgress(SocketState::Connecting);
    later(&SocketConnector::tryNext, turnsOfAState);
}

void SocketConnector::tryNext() {
    while (next_ < addresses_.size()) {
        const tcp::endpoint peer(asio::ip::make_address(addresses_[next_++], problem_), port_);
        socket_ = tcp::socket(context_);
        if (!problem_) socket_.open(peer.protocol(), problem_);
        if (problem_) continue;
        keepFromChildren(socket_.native_handle());
        socket_.async_connect(peer, [self = shared_from_this()](const std::error_code& problem) {
            if (!self->stopped_) self->onTried(problem);
        });
        return;
    }
    owner_.onFailed(problem_ ? socketError(problem_) : socketError(socket_number::HostNotFound));
}

void SocketConnector::onTried(const std::error_code& problem) {
    if (!problem) {
        owner_.onConnected(std::move(socket_));
        return;
    }
    problem_ = problem;
    tryNext();
}

}  // namespace vell
