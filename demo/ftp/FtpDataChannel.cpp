// SPDX-License-Identifier: MIT
#include "demo/ftp/FtpDataChannel.h"

#include <algorithm>
#include <array>
#include <charconv>

#include <asio/buffer.hpp>
#include <asio/experimental/awaitable_operators.hpp>
#include <asio/redirect_error.hpp>
#include <asio/steady_timer.hpp>
#include <asio/use_awaitable.hpp>
#include <asio/write.hpp>

#include "base/text.h"

namespace vell::demo {

using asio::redirect_error;
using asio::use_awaitable;
using asio::ip::tcp;

namespace {

constexpr std::chrono::seconds openingAllowed{20};

std::optional<std::array<unsigned char, 6>> sixNumbers(std::string_view text) {
    std::array<unsigned char, 6> numbers{};
    const auto words = Split(text, ",");
    if (words.size() != numbers.size()) return std::nullopt;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto* end = words[i].data() + words[i].size();
        const auto read = std::from_chars(words[i].data(), end, numbers[i]);
        if (read.ptr != end || read.ec != std::errc{}) return std::nullopt;
    }
    return numbers;
}

}  // namespace

FtpDataChannel::FtpDataChannel(const asio::any_io_executor& executor, const tcp::socket& control, const SlowLine& line,
                               IdleWatch& idle)
    : control_(control), line_(line), idle_(idle), listener_(executor), socket_(executor) {}

bool FtpDataChannel::prepareActive(std::string_view argument) {
    close();
    const auto numbers = sixNumbers(argument);
    if (!numbers) return false;
    const auto& n = *numbers;
    const asio::ip::address address = asio::ip::address_v4({n[0], n[1], n[2], n[3]});
    const auto port = static_cast<std::uint16_t>(n[4] * 256 + n[5]);
    constexpr std::uint16_t firstFreePort = 1024;  // below it lie the ports of services
    asio::error_code problem;
    if (address != control_.remote_endpoint(problem).address() || port < firstFreePort) return false;
    target_ = tcp::endpoint(address, port);
    return true;
}

std::optional<std::string> FtpDataChannel::preparePassive() {
    close();
    asio::error_code problem;
    const auto address = control_.local_endpoint(problem).address();
    if (problem) return std::nullopt;
    listener_.open(tcp::v4(), problem);
    if (!problem) listener_.bind({address, 0}, problem);
    if (!problem) listener_.listen(1, problem);
    if (problem) {
        close();
        return std::nullopt;
    }
    const auto port = listener_.local_endpoint().port();
    return Replace(address.to_string(), ".", ",") + "," + std::to_string(port / 256) + "," + std::to_string(port % 256);
}

asio::awaitable<TransferEnd> FtpDataChannel::sendText(std::string text) {
    if (!co_await open()) co_return TransferEnd::NotOpened;
    const bool isSent = co_await sendBlock(text);
    co_return isSent ? TransferEnd::Whole : TransferEnd::Cut;
}

asio::awaitable<TransferEnd> FtpDataChannel::sendFile(std::filesystem::path file, std::uintmax_t offset) {
    std::ifstream stream(file, std::ios::binary);
    stream.seekg(static_cast<std::streamoff>(offset));
    if (!co_await open()) co_return TransferEnd::NotOpened;
    std::string block(line_.blockSize(), '\0');
    std::error_code problem;
    const auto size = std::filesystem::file_size(file, problem);
    if (problem) co_return TransferEnd::DiskProblem;
    const auto whole = size - std::min<std::uintmax_t>(offset, size), brought = line_.broughtOf(whole);
    for (auto left = brought; left > 0;) {
        stream.read(block.data(), static_cast<std::streamsize>(std::min<std::uintmax_t>(left, block.size())));
        const auto count = static_cast<std::size_t>(stream.gcount());
        if (count == 0) co_return TransferEnd::DiskProblem;
        const std::string_view part(block.data(), count);
        if (!co_await sendBlock(part)) co_return TransferEnd::Cut;
        left -= count;
    }
    co_return brought == whole ? TransferEnd::Whole : TransferEnd::Cut;
}

asio::awaitable<TransferEnd> FtpDataChannel::receiveFile(std::filesystem::path file, std::ios::openmode mode,
                                                         std::uintmax_t offset) {
    if (!co_await open()) co_return TransferEnd::NotOpened;  // before the old file is touched
    std::ofstream stream;
    stream.rdbuf()->pubsetbuf(nullptr, 0);  // every block is on disk as it comes, for those who resume
    stream.open(file, std::ios::binary | mode);
    if (offset > 0) stream.seekp(static_cast<std::streamoff>(offset));
    std::string block(line_.blockSize(), '\0');
    asio::error_code problem;
    while (!problem && stream) {
        const auto count =
            co_await socket_.async_read_some(asio::buffer(block), redirect_error(use_awaitable, problem));
        idle_.touch();
        stream.write(block.data(), static_cast<std::streamsize>(count));
        co_await line_.afterBlock(count);
    }
    if (!stream) co_return TransferEnd::DiskProblem;
    co_return problem == asio::error::eof ? TransferEnd::Whole : TransferEnd::Cut;
}

void FtpDataChannel::close() {
    asio::error_code ignored;
    target_.reset();
    listener_.close(ignored);
    socket_.close(ignored);
}

asio::awaitable<bool> FtpDataChannel::open() {
    using asio::experimental::awaitable_operators::operator||;
    asio::error_code problem;
    asio::steady_timer limit(listener_.get_executor(), openingAllowed);
    if (target_)
        co_await (socket_.async_connect(*target_, redirect_error(use_awaitable, problem)) ||
                  limit.async_wait(use_awaitable));
    else
        co_await (accept() || limit.async_wait(use_awaitable));
    target_.reset();
    asio::error_code ignored;
    listener_.close(ignored);
    if (problem) co_return false;
    co_return socket_.is_open();
}

asio::awaitable<bool> FtpDataChannel::accept() {
    asio::error_code problem;
    const auto peer = control_.remote_endpoint(problem).address();
    while (!problem) {
        tcp::socket caller(listener_.get_executor());
        co_await listener_.async_accept(caller, redirect_error(use_awaitable, problem));
        asio::error_code gone;
        if (problem || caller.remote_endpoint(gone).address() != peer) continue;  // a stranger is hung up on
        socket_ = std::move(caller);
        co_return true;
    }
    co_return false;
}

asio::awaitable<bool> FtpDataChannel::sendBlock(std::string_view block) {
    asio::error_code problem;
    co_await asio::async_write(socket_, asio::buffer(block), redirect_error(use_awaitable, problem));
    idle_.touch();
    co_await line_.afterBlock(block.size());
    co_return !problem;
}

}  // namespace vell::demo
