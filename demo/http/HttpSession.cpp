// SPDX-License-Identifier: MIT
#include "demo/http/HttpSession.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <map>

#include <asio/buffer.hpp>
#include <asio/redirect_error.hpp>
#include <asio/use_awaitable.hpp>
#include <asio/write.hpp>

namespace vell::demo {

using asio::redirect_error;
using asio::use_awaitable;

namespace {

constexpr std::chrono::seconds idleAllowed{30};
constexpr std::size_t blockSize = 16UL * 1024;

const char* reasonOf(int status) {
    static const std::map<int, const char*> reasons{
        {200, "OK"},
        {400, "Bad Request"},
        {404, "Not Found"},
        {405, "Method Not Allowed"},
        {411, "Length Required"},
        {413, "Content Too Large"},
        {431, "Request Header Fields Too Large"},
        {501, "Not Implemented"},
        {505, "HTTP Version Not Supported"},
    };
    return reasons.at(status);
}

std::string headOf(const HttpAnswer& answer, std::uintmax_t size, bool keepsConnection) {
    std::string head = "HTTP/1.1 " + std::to_string(answer.Status) + " " + reasonOf(answer.Status) + "\r\n";
    head += "Server: vell-demo-service/" VELL_VERSION "\r\n";
    head += "Content-Type: " + answer.Type + "\r\n";
    head += "Content-Length: " + std::to_string(size) + "\r\n";
    if (!answer.Allow.empty()) head += "Allow: " + answer.Allow + "\r\n";
    head += keepsConnection ? "Connection: keep-alive\r\n\r\n" : "Connection: close\r\n\r\n";
    return head;
}

}  // namespace

HttpSession::HttpSession(asio::ip::tcp::socket socket, const HttpSite& site, const SlowLine& line,
                         const Journal& journal)
    : socket_(std::move(socket)),
      site_(site),
      line_(line),
      journal_(journal),
      idle_(socket_.get_executor(), idleAllowed) {
    asio::error_code ignored;
    // Head and file go out in two writes; the second must not wait for the first to be acknowledged.
    socket_.set_option(asio::ip::tcp::no_delay(true), ignored);
}

asio::awaitable<void> HttpSession::run(std::shared_ptr<HttpSession> self) {
    self->idle_.start(self, [session = self.get()] {
        asio::error_code ignored;
        session->socket_.close(ignored);
    });
    bool goesOn = true;
    while (goesOn) {
        const auto request = co_await self->nextRequest();
        if (!request) break;
        const HttpAnswer answer = self->site_.answer(*request);
        self->journal_.tell("HTTP", request->Method + " " + request->Path + " -> " + std::to_string(answer.Status));
        const bool withBody = request->Method != "HEAD";
        goesOn = co_await self->send(answer, withBody, request->KeepsConnection);
    }
    co_await self->linger();
    self->idle_.stop();
}

asio::awaitable<std::optional<HttpRequest>> HttpSession::nextRequest() {
    HttpAnswer refusal;
    try {
        while (true) {
            if (auto request = reader_.next()) co_return request;
            bool isOpen = true;
            if (reader_.takeContinueWish()) isOpen = co_await sendText("HTTP/1.1 100 Continue\r\n\r\n");
            if (isOpen) isOpen = co_await readMore();
            if (!isOpen) co_return std::nullopt;
        }
    } catch (const HttpProblem& problem) {
        refusal = problemAnswer(problem.Status, problem.what());
    }
    journal_.tell("HTTP", "no request -> " + std::to_string(refusal.Status));
    co_await send(refusal, true, false);
    co_return std::nullopt;
}

asio::awaitable<bool> HttpSession::readMore() {
    std::array<char, blockSize> block;
    asio::error_code problem;
    const auto count = co_await socket_.async_read_some(asio::buffer(block), redirect_error(use_awaitable, problem));
    idle_.touch();
    reader_.feed({block.data(), count});
    co_return !problem;
}

// What is awaited below is made of named values only: GCC 12 destroys temporaries of a conditional expression twice
// when a co_await stands in the same statement.
asio::awaitable<bool> HttpSession::send(const HttpAnswer& answer, bool withBody, bool keepsConnection) {
    co_await line_.beforeAnswer();
    std::error_code problem;
    const auto size = answer.File ? std::filesystem::file_size(*answer.File, problem) : answer.Body.size();
    if (problem) co_return false;  // the file went away just now
    std::string text = headOf(answer, size, keepsConnection);
    if (withBody) text += answer.Body;
    bool isSent = co_await sendText(text);
    if (isSent && withBody && answer.File) isSent = co_await sendFile(*answer.File, size);
    if (!isSent) co_return false;
    co_return keepsConnection;
}

asio::awaitable<bool> HttpSession::sendText(std::string_view text) {
    asio::error_code problem;
    co_await asio::async_write(socket_, asio::buffer(text), redirect_error(use_awaitable, problem));
    idle_.touch();
    co_return !problem;
}

// False when less was sent than announced: closing is all that then tells the client.
asio::awaitable<bool> HttpSession::sendFile(const std::filesystem::path& file, std::uintmax_t size) {
    std::ifstream stream(file, std::ios::binary);
    std::string block(line_.blockSize(), '\0');
    const auto brought = line_.broughtOf(size);
    for (auto left = brought; left > 0;) {
        stream.read(block.data(), static_cast<std::streamsize>(std::min<std::uintmax_t>(left, block.size())));
        const auto count = static_cast<std::size_t>(stream.gcount());
        if (count == 0) co_return false;
        const std::string_view part(block.data(), count);
        if (!co_await sendText(part)) co_return false;
        co_await line_.afterBlock(count);
        left -= count;
    }
    co_return brought == size;
}

// Closing while bytes of the peer lie unread would reset the connection and could take the answer with it (RFC 9112,
// 9.6). So the end is announced first, and what still comes is read away.
asio::awaitable<void> HttpSession::linger() {
    asio::error_code problem;
    socket_.shutdown(asio::ip::tcp::socket::shutdown_send, problem);
    std::array<char, blockSize> block;
    constexpr std::size_t patience = 1024 * blockSize;
    for (std::size_t read = 0; !problem && read < patience;)
        read += co_await socket_.async_read_some(asio::buffer(block), redirect_error(use_awaitable, problem));
}

}  // namespace vell::demo
