// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace vell::test {

// A server on loopback that answers HTTP requests as the test wants, however badly. One connection at a time: the next
// one ends one that is kept. It runs in a thread of its own and ends with the object.
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
    // More on the connection that stalls, at once.
    void say(std::string_view bytes);

    // A well-formed answer.
    [[nodiscard]] static Answer ok(const std::string& body);
    [[nodiscard]] static Answer status(const std::string& codeAndReason, const std::string& headers = "",
                                       const std::string& body = "");

  private:
    void serve();
    // False when the connection is to be closed.
    bool serveOne(int connection, bool isKept);
    bool answer(int connection, const std::string& request);
    bool write(int connection, std::string_view bytes);

    Handler handler_;
    int listener_ = -1;
    int port_ = 0;
    std::atomic<bool> ending_ = false;
    std::atomic<int> connections_ = 0;
    std::atomic<int> current_ = -1;
    std::atomic<std::size_t> sent_ = 0;
    mutable std::mutex guard_;
    std::vector<std::string> requests_;
    std::thread thread_;
};

}  // namespace vell::test
