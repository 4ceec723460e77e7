// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <asio/awaitable.hpp>
#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>

namespace vell::test {

// A server on loopback that answers HTTP requests as the test wants, however badly. It runs in a thread of its own and
// ends with the object.
class HttpPeer {
  public:
    struct Answer {
        std::string Bytes;
        bool Stalls = false;                   // says nothing more and keeps the connection open until the peer ends
        std::function<void()> Sent = nullptr;  // called when the bytes have left
        bool Keeps = false;                    // one more request may come on the connection
    };
    // The handler is called in the peer's thread with the whole request, headers and body.
    using Handler = std::function<Answer(const std::string& request)>;

    explicit HttpPeer(Handler handler);
    ~HttpPeer();
    HttpPeer(const HttpPeer&) = delete;
    HttpPeer& operator=(const HttpPeer&) = delete;

    // "127.0.0.1:port".
    [[nodiscard]] std::string address() const { return "127.0.0.1:" + std::to_string(port_); }
    [[nodiscard]] std::vector<std::string> requests() const;
    [[nodiscard]] int connections() const { return connections_; }
    // How much of the answers has left.
    [[nodiscard]] std::size_t sentBytes() const { return sent_; }
    // More on the connection that stalls, which has left when this returns.
    void say(std::string_view bytes);

    // A well-formed answer.
    [[nodiscard]] static Answer ok(const std::string& body);
    [[nodiscard]] static Answer status(const std::string& codeAndReason, const std::string& headers = "",
                                       const std::string& body = "");

  private:
    asio::awaitable<void> serve();
    asio::awaitable<void> converse(asio::ip::tcp::socket socket);
    Answer answer(const std::string& request);

    Handler handler_;
    std::atomic<int> connections_ = 0;
    std::atomic<std::size_t> sent_ = 0;
    mutable std::mutex guard_;
    std::vector<std::string> requests_;
    asio::ip::tcp::socket* stalling_ = nullptr;
    asio::io_context context_;
    asio::ip::tcp::acceptor listener_{context_, {asio::ip::address_v4::loopback(), 0}};
    int port_ = listener_.local_endpoint().port();
    std::thread thread_;
};

}  // namespace vell::test
