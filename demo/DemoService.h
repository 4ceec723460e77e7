// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include <asio/awaitable.hpp>
#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>

#include "demo/Journal.h"
#include "demo/Options.h"
#include "demo/SlowLine.h"
#include "demo/days/ClippingsTree.h"
#include "demo/ftp/FtpTree.h"
#include "demo/http/HttpSite.h"

namespace vell::demo {

// Both sides of the service, from listening on: every caller gets a session of his own. It has to outlive the loop.
class DemoService {
  public:
    // Throws std::runtime_error, in words for the user, when an address cannot be had.
    DemoService(asio::io_context& loop, const Options& options, const ClippingsTree& tree);

    [[nodiscard]] Endpoint http() const { return where(httpListener_); }
    [[nodiscard]] Endpoint ftp() const { return where(ftpListener_); }

  private:
    using Greet = std::function<void(asio::ip::tcp::socket)>;

    static Endpoint where(const asio::ip::tcp::acceptor& listener);
    static asio::awaitable<void> receiveCallers(asio::ip::tcp::acceptor& listener, Greet greet);
    void greetHttp(asio::ip::tcp::socket socket);
    void greetFtp(asio::ip::tcp::socket socket);

    asio::io_context& loop_;
    const ClippingsTree& tree_;
    UpdateShelf updates_;
    HttpSite site_;
    FtpTree ftpTree_;
    SlowLine line_;
    Journal journal_;
    ListForm listing_;
    asio::ip::tcp::acceptor httpListener_;
    asio::ip::tcp::acceptor ftpListener_;
};

}  // namespace vell::demo
