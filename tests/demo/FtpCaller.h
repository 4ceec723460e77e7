// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <asio/ip/tcp.hpp>

namespace vell::test {

// An FTP client that does exactly what a test tells it.
class FtpCaller {
  public:
    // Takes the greeting and logs in as the service's clients do.
    explicit FtpCaller(const std::string& place, const std::string& user = "vell",
                       const std::string& password = "ruxo");

    void send(std::string_view bytes) { control_ << bytes << std::flush; }
    // A whole reply, its lines joined by "\n"; empty when the connection was closed.
    [[nodiscard]] std::string reply();
    [[nodiscard]] int code();
    // Sends a command and takes its reply.
    std::string ask(const std::string& command);
    int tell(const std::string& command);

    // A stream to where PASV says.
    [[nodiscard]] asio::ip::tcp::iostream passive();
    // Runs a transfer command to its last reply, over a connection of the given kind, and gives what came.
    enum class Way { Passive, Active };
    [[nodiscard]] std::string receive(const std::string& command, Way way = Way::Passive);
    // Sends the bytes with STOR or APPE; the last code.
    int store(const std::string& command, std::string_view bytes);
    // Of the last transfer, or the login.
    [[nodiscard]] int lastCode() const { return lastCode_; }

    void hangUp() { control_.close(); }

  private:
    asio::ip::tcp::iostream control_;
    int lastCode_ = 0;
};

}  // namespace vell::test
