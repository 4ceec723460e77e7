// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>

#include <asio/ip/tcp.hpp>

namespace vell::test {

// Long enough for a loaded machine, short enough to show that something hangs.
inline constexpr std::chrono::seconds patience{20};

// A stream to "127.0.0.1:34567".
[[nodiscard]] asio::ip::tcp::iostream streamTo(const std::string& place);

struct HttpReply {
    int Status = 0;  // 0: the connection was closed instead
    std::string Head;
    std::string Body;
};

// One connection on which requests are written byte by byte as the test wants them.
class HttpCaller {
  public:
    explicit HttpCaller(const std::string& place) : stream_(streamTo(place)) {}

    void send(std::string_view bytes) { stream_ << bytes << std::flush; }
    // The body as long as its Content-Length says.
    [[nodiscard]] HttpReply reply(bool withBody = true);
    // True when the service has closed without sending any more.
    [[nodiscard]] bool isClosed();

  private:
    asio::ip::tcp::iostream stream_;
};

// A whole exchange on a connection of its own.
[[nodiscard]] HttpReply get(const std::string& place, const std::string& address);
[[nodiscard]] HttpReply post(const std::string& place, const std::string& address, const std::string& body);

}  // namespace vell::test
