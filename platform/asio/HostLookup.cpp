// SPDX-License-Identifier: MIT
#include "platform/asio/HostLookup.h"

#include <mutex>
#include <thread>
#include <utility>

#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>
#include <asio/post.hpp>

#include "platform/asio/SocketNumbers.h"

namespace vell {

std::vector<std::string> resolveBySystem(const std::string& host) {
    // A zero byte would cut the name short, and another host would be asked for.
    if (host.find('\0') != std::string::npos) throw socketError(socket_number::HostNotFound);
    asio::io_context context;
    asio::ip::tcp::resolver resolver(context);
    std::error_code problem;
    // Without address_configured, which finds no localhost on a machine without a network.
    const auto found = resolver.resolve(asio::ip::tcp::v4(), host, "", asio::ip::tcp::resolver::flags{}, problem);
    if (problem) throw socketError(problem);
    std::vector<std::string> addresses;
    for (const auto& entry : found)
        addresses.push_back(entry.endpoint().address().to_string());
    return addresses;
}

namespace {

HostAddresses askedFor(const HostResolver& resolver, const std::string& host) {
    try {
        return {resolver(host), std::nullopt};
    } catch (...) {
        return {{}, currentError()};
    }
}

}  // namespace

struct HostLookup::Shared {
    Shared(asio::io_context& context, Done done) : Context(&context), Tell(std::move(done)) {}

    void deliver(HostAddresses addresses, const std::shared_ptr<Shared>& self) {
        const std::lock_guard hold(Guard);
        if (Context == nullptr) return;
        asio::post(*Context, [self, found = std::move(addresses)] {
            if (const Done tell = std::exchange(self->Tell, nullptr)) tell(found);
        });
    }

    std::mutex Guard;
    asio::io_context* Context;  // guarded; null once nobody is interested, and the context may be gone
    Done Tell;                  // touched by the context's thread alone
};

HostLookup::HostLookup(asio::io_context& context, std::string host, HostResolver resolver, Done done)
    : shared_(std::make_shared<Shared>(context, std::move(done))) {
    try {
        std::thread([shared = shared_, name = std::move(host), ask = std::move(resolver)] {
            shared->deliver(askedFor(ask, name), shared);
        }).detach();
    } catch (const std::system_error&) {  // no thread to be had now
        throw socketError(socket_number::HostNotFoundTryAgain);
    }
}

HostLookup::~HostLookup() {
    shared_->Tell = nullptr;
    const std::lock_guard hold(shared_->Guard);
    shared_->Context = nullptr;
}

}  // namespace vell
