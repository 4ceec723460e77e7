// SPDX-License-Identifier: MIT
#include "tests/support/HttpPeer.h"

#include <future>
#include <utility>

#include <asio/buffer.hpp>
#include <asio/co_spawn.hpp>
#include <asio/post.hpp>
#include <asio/read.hpp>
#include <asio/use_awaitable.hpp>
#include <asio/write.hpp>

namespace vell::test {

namespace {

bool isWhole(const std::string& request) {
    const auto end = request.find("\r\n\r\n"), length = request.find("Content-Length: ");
    if (end == std::string::npos) return false;
    return request.size() >= end + 4 + (length > end ? 0 : std::stoul(request.substr(length + 16)));
}

// A test that the peer cannot serve must not seem to be served.
void rethrow(const std::exception_ptr& failure) {
    if (failure) std::rethrow_exception(failure);
}

}  // namespace

HttpPeer::HttpPeer(Handler handler) : handler_(std::move(handler)) {
    asio::co_spawn(context_, serve(), rethrow);
    thread_ = std::thread([this] { context_.run(); });
}

HttpPeer::~HttpPeer() {
    context_.stop();
    thread_.join();
}

std::vector<std::string> HttpPeer::requests() const {
    const std::lock_guard lock(guard_);
    return requests_;
}

HttpPeer::Answer HttpPeer::ok(const std::string& body) {
    return status("200 OK", "", body);
}

HttpPeer::Answer HttpPeer::status(const std::string& codeAndReason, const std::string& headers,
                                  const std::string& body) {
    return {"HTTP/1.0 " + codeAndReason + "\r\n" + headers + "Content-Length: " + std::to_string(body.size()) +
            "\r\n\r\n" + body};
}

asio::awaitable<void> HttpPeer::serve() {
    for (;;) {
        asio::ip::tcp::socket socket = co_await listener_.async_accept(asio::use_awaitable);
        ++connections_;
        asio::co_spawn(context_, converse(std::move(socket)), rethrow);
    }
}

asio::awaitable<void> HttpPeer::converse(asio::ip::tcp::socket socket) try {
    for (bool isKept = true; isKept;) {
        std::string request;
        while (!isWhole(request))
            co_await asio::async_read(socket, asio::dynamic_buffer(request), asio::transfer_at_least(1),
                                      asio::use_awaitable);
        const Answer answer = this->answer(request);
        for (std::size_t at = 0; at < answer.Bytes.size();) {
            const std::size_t left =
                co_await socket.async_write_some(asio::buffer(answer.Bytes) + at, asio::use_awaitable);
            at += left;
            sent_ += left;
        }
        if (answer.Sent) answer.Sent();
        if (answer.Stalls) {
            stalling_ = &socket;
            co_await asio::async_read(socket, asio::dynamic_buffer(request), asio::use_awaitable);
        }
        isKept = answer.Keeps;
    }
} catch (const asio::system_error&) {
    stalling_ = nullptr;  // the other side has left
}

HttpPeer::Answer HttpPeer::answer(const std::string& request) {
    {
        const std::lock_guard lock(guard_);
        requests_.push_back(request);
    }
    return handler_(request);
}

void HttpPeer::say(std::string_view bytes) {
    std::packaged_task<void()> task([&] {
        if (stalling_) sent_ += asio::write(*stalling_, asio::buffer(bytes));
    });
    auto left = task.get_future();
    asio::post(context_, [task = std::move(task)]() mutable { task(); });
    left.get();
}

}  // namespace vell::test
