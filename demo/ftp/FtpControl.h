// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include <asio/awaitable.hpp>
#include <asio/ip/tcp.hpp>

#include "demo/IdleWatch.h"
#include "demo/Journal.h"
#include "demo/Signal.h"
#include "demo/SlowLine.h"

namespace vell::demo {

// Takes the bytes of a control connection apart into command lines. Telnet commands, which clients put before ABOR,
// are dropped (RFC 959, 3.1: the connection follows the Telnet protocol; RFC 854 for the codes).
class FtpLineReader {
  public:
    static constexpr std::size_t LineLimit = 8UL * 1024;

    void feed(std::string_view bytes);
    // Without its end. A line over the limit comes out as an empty one.
    [[nodiscard]] std::optional<std::string> next();

  private:
    enum class Telnet { None, Command, Option };
    void take(unsigned char byte);

    std::string bytes_;
    Telnet telnet_ = Telnet::None;
    bool isOverlong_ = false;
};

// The control connection of a session: command lines in, replies out, in their order.
class FtpControl {
  public:
    FtpControl(asio::ip::tcp::socket socket, const SlowLine& line, const Journal& journal);

    [[nodiscard]] const asio::ip::tcp::socket& socket() const { return socket_; }

    // Puts a reply in the queue; `writeReplies` sends it.
    void say(int code, std::string_view text);
    // The same for a reply of several lines, each with its CR LF.
    void sayLines(std::string_view lines);

    // Nothing once the connection has ended.
    asio::awaitable<std::optional<std::string>> readLine(IdleWatch& idle);
    // Returns when the connection was closed or `finish` was called and all is sent.
    asio::awaitable<void> writeReplies();
    // Returns when every reply so far was sent, or cannot be.
    asio::awaitable<void> sent();

    // No command is read any more; replies still go out.
    void stopReading();
    void finish();
    void close();

  private:
    asio::ip::tcp::socket socket_;
    const SlowLine& line_;
    const Journal& journal_;
    FtpLineReader reader_;
    std::string replies_;
    Signal queued_;
    Signal drained_;
    bool isWriting_ = false;
    bool isFinished_ = false;
};

}  // namespace vell::demo
