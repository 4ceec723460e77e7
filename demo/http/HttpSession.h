// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include <asio/awaitable.hpp>
#include <asio/ip/tcp.hpp>

#include "demo/IdleWatch.h"
#include "demo/Journal.h"
#include "demo/SlowLine.h"
#include "demo/http/HttpRequest.h"
#include "demo/http/HttpSite.h"

namespace vell::demo {

// One HTTP connection, from its first request to its close. The coroutine that runs it keeps it alive.
class HttpSession {
  public:
    HttpSession(asio::ip::tcp::socket socket, const HttpSite& site, const SlowLine& line, const Journal& journal);

    static asio::awaitable<void> run(std::shared_ptr<HttpSession> self);

  private:
    // Nothing when the peer has closed or has sent what is no request; that was answered then.
    asio::awaitable<std::optional<HttpRequest>> nextRequest();
    asio::awaitable<bool> readMore();
    // False when the connection is of no more use.
    asio::awaitable<bool> send(const HttpAnswer& answer, bool withBody, bool keepsConnection);
    asio::awaitable<bool> sendText(std::string_view text);
    asio::awaitable<bool> sendFile(const std::filesystem::path& file, std::uintmax_t size);
    asio::awaitable<void> linger();

    asio::ip::tcp::socket socket_;
    HttpRequestReader reader_;
    const HttpSite& site_;
    const SlowLine& line_;
    const Journal& journal_;
    IdleWatch idle_;
};

}  // namespace vell::demo
