// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

#include <asio/awaitable.hpp>
#include <asio/ip/tcp.hpp>

#include "demo/IdleWatch.h"
#include "demo/SlowLine.h"

namespace vell::demo {

enum class TransferEnd { Whole, NotOpened, Cut, DiskProblem };

// The data connection of a session: prepared by PORT or PASV, opened for one transfer, closed after it. It deals with
// nobody but the peer of the control connection, so it cannot be used to reach third machines (RFC 2577).
class FtpDataChannel {
  public:
    FtpDataChannel(const asio::any_io_executor& executor, const asio::ip::tcp::socket& control, const SlowLine& line,
                   IdleWatch& idle);

    // PORT with its "h1,h2,h3,h4,p1,p2"; false when that is malformed or leads elsewhere than to the peer.
    [[nodiscard]] bool prepareActive(std::string_view argument);
    // PASV; the same six numbers to tell the peer, nothing when no port could be had.
    [[nodiscard]] std::optional<std::string> preparePassive();
    [[nodiscard]] bool isPrepared() const { return target_ || listener_.is_open(); }

    asio::awaitable<TransferEnd> sendText(std::string text);
    asio::awaitable<TransferEnd> sendFile(std::filesystem::path file, std::uintmax_t offset);
    asio::awaitable<TransferEnd> receiveFile(std::filesystem::path file, std::ios::openmode mode,
                                             std::uintmax_t offset);

    // Ends a transfer that is under way as well.
    void close();

  private:
    asio::awaitable<bool> open();
    asio::awaitable<bool> accept();
    asio::awaitable<bool> sendBlock(std::string_view block);

    const asio::ip::tcp::socket& control_;
    const SlowLine& line_;
    IdleWatch& idle_;
    std::optional<asio::ip::tcp::endpoint> target_;
    asio::ip::tcp::acceptor listener_;
    asio::ip::tcp::socket socket_;
};

}  // namespace vell::demo
