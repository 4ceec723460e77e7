// SPDX-License-Identifier: MIT
#include "demo/DemoService.h"

#include <chrono>
#include <memory>
#include <stdexcept>

#include <asio/co_spawn.hpp>
#include <asio/redirect_error.hpp>
#include <asio/steady_timer.hpp>
#include <asio/use_awaitable.hpp>

#include "demo/ftp/FtpSession.h"
#include "demo/http/HttpSession.h"

namespace vell::demo {

using asio::ip::tcp;

namespace {

tcp::acceptor listenerAt(asio::io_context& loop, const Endpoint& place, const char* option) {
    try {
        return {loop, tcp::endpoint(asio::ip::make_address(place.Address), place.Port)};
    } catch (const std::system_error& problem) {
        throw std::runtime_error("cannot listen on " + place.text() + ": " + problem.code().message() +
                                 "; give another address with " + option);
    }
}

}  // namespace

DemoService::DemoService(asio::io_context& loop, const Options& options, const ClippingsTree& tree)
    : loop_(loop),
      tree_(tree),
      updates_(options.Updates),
      site_(tree, updates_),
      ftpTree_(tree),
      line_(options.Speed),
      journal_(options.Verbose),
      listing_(options.Listing),
      httpListener_(listenerAt(loop, options.Http, "--http")),
      ftpListener_(listenerAt(loop, options.Ftp, "--ftp")) {
    const auto http = [this](tcp::socket socket) { greetHttp(std::move(socket)); };
    const auto ftp = [this](tcp::socket socket) { greetFtp(std::move(socket)); };
    asio::co_spawn(loop_, receiveCallers(httpListener_, http), Journal::failure);
    asio::co_spawn(loop_, receiveCallers(ftpListener_, ftp), Journal::failure);
}

Endpoint DemoService::where(const tcp::acceptor& listener) {
    const auto place = listener.local_endpoint();
    return {place.address().to_string(), place.port()};
}

asio::awaitable<void> DemoService::receiveCallers(tcp::acceptor& listener, Greet greet) {
    while (true) {
        asio::error_code problem;
        tcp::socket socket(listener.get_executor());
        co_await listener.async_accept(socket, asio::redirect_error(asio::use_awaitable, problem));
        if (!problem) {
            greet(std::move(socket));
            continue;
        }
        // Out of descriptors, most likely: sessions have to end before it can go on.
        asio::steady_timer pause(listener.get_executor(), std::chrono::milliseconds{100});
        co_await pause.async_wait(asio::use_awaitable);
    }
}

void DemoService::greetHttp(tcp::socket socket) {
    const auto session = std::make_shared<HttpSession>(std::move(socket), site_, line_, journal_);
    asio::co_spawn(loop_, HttpSession::run(session), Journal::failure);
}

void DemoService::greetFtp(tcp::socket socket) {
    const auto session = std::make_shared<FtpSession>(std::move(socket), tree_, ftpTree_, line_, journal_, listing_);
    asio::co_spawn(loop_, FtpSession::run(session), Journal::failure);
}

}  // namespace vell::demo
