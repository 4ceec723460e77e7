// SPDX-License-Identifier: MIT
#include "demo/ftp/FtpControl.h"

#include <algorithm>
#include <array>
#include <utility>

#include <asio/buffer.hpp>
#include <asio/redirect_error.hpp>
#include <asio/use_awaitable.hpp>
#include <asio/write.hpp>

namespace vell::demo {

using asio::redirect_error;
using asio::use_awaitable;

void FtpLineReader::feed(std::string_view bytes) {
    for (char c : bytes)
        take(static_cast<unsigned char>(c));
}

void FtpLineReader::take(unsigned char byte) {
    constexpr unsigned char interpretAsCommand = 255;
    constexpr unsigned char will = 251;  // the first of the four that an option follows
    if (telnet_ == Telnet::Option) {
        telnet_ = Telnet::None;
    } else if (telnet_ == Telnet::Command && byte != interpretAsCommand) {
        telnet_ = byte >= will ? Telnet::Option : Telnet::None;
    } else if (telnet_ == Telnet::None && byte == interpretAsCommand) {
        telnet_ = Telnet::Command;
    } else {
        telnet_ = Telnet::None;
        bytes_ += static_cast<char>(byte);
    }
}

std::optional<std::string> FtpLineReader::next() {
    const auto end = bytes_.find('\n');
    if (std::min(end, bytes_.size()) > LineLimit) isOverlong_ = true;
    if (end == std::string::npos) {
        if (isOverlong_) bytes_.clear();
        return std::nullopt;
    }
    std::string line = bytes_.substr(0, end);
    bytes_.erase(0, end + 1);
    if (std::exchange(isOverlong_, false)) return std::string{};
    if (line.ends_with('\r')) line.pop_back();
    return line;
}

FtpControl::FtpControl(asio::ip::tcp::socket socket, const SlowLine& line, const Journal& journal)
    : socket_(std::move(socket)),
      line_(line),
      journal_(journal),
      queued_(socket_.get_executor()),
      drained_(socket_.get_executor()) {
    asio::error_code ignored;
    // A Telnet "data mark" sent as urgent data stays where it stands between the other bytes.
    socket_.set_option(asio::socket_base::out_of_band_inline(true), ignored);
    socket_.set_option(asio::ip::tcp::no_delay(true), ignored);
}

void FtpControl::say(int code, std::string_view text) {
    sayLines(std::to_string(code).append(" ").append(text).append("\r\n"));
}

void FtpControl::sayLines(std::string_view lines) {
    replies_.append(lines);
    journal_.tell("FTP ", "  " + std::string(lines.substr(0, lines.find('\r'))));
    queued_.raise();
}

asio::awaitable<std::optional<std::string>> FtpControl::readLine(IdleWatch& idle) {
    std::array<char, 4096> block;
    asio::error_code problem;
    auto line = reader_.next();
    while (!line && !problem) {
        const auto count =
            co_await socket_.async_read_some(asio::buffer(block), redirect_error(use_awaitable, problem));
        idle.touch();
        reader_.feed({block.data(), count});
        line = reader_.next();
    }
    co_return line;
}

asio::awaitable<void> FtpControl::writeReplies() {
    while (socket_.is_open() && !(isFinished_ && replies_.empty())) {
        if (replies_.empty()) {
            co_await queued_.wait();
            continue;
        }
        const std::string reply = std::exchange(replies_, {});
        isWriting_ = true;
        co_await line_.beforeAnswer();
        asio::error_code problem;
        co_await asio::async_write(socket_, asio::buffer(reply), redirect_error(use_awaitable, problem));
        isWriting_ = false;
        if (problem) close();
        drained_.raise();
    }
}

asio::awaitable<void> FtpControl::sent() {
    while (socket_.is_open() && (isWriting_ || !replies_.empty()))
        co_await drained_.wait();
}

void FtpControl::stopReading() {
    asio::error_code ignored;
    socket_.shutdown(asio::ip::tcp::socket::shutdown_receive, ignored);
}

void FtpControl::finish() {
    isFinished_ = true;
    queued_.raise();
}

void FtpControl::close() {
    asio::error_code ignored;
    socket_.close(ignored);
    queued_.raise();
    drained_.raise();
}

}  // namespace vell::demo
