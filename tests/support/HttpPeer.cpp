// SPDX-License-Identifier: MIT
#include "tests/support/HttpPeer.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <stdexcept>
#include <string_view>
#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace vell::test {

namespace {

// Waits in steps, so that the peer's end is heard.
bool waitForInput(int descriptor, const std::atomic<bool>& ending) {
    pollfd input{descriptor, POLLIN, 0};
    while (!ending)
        if (poll(&input, 1, 20) > 0) return true;
    return false;
}

std::size_t announcedLength(const std::string& request) {
    const auto at = request.find("Content-Length: ");
    return at == std::string::npos ? 0 : std::stoul(request.substr(at + 16));
}

bool isWhole(const std::string& request) {
    const auto end = request.find("\r\n\r\n");
    return end != std::string::npos && request.size() >= end + 4 + announcedLength(request);
}

}  // namespace

HttpPeer::HttpPeer(Handler handler) : handler_(std::move(handler)), listener_(socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* generic = reinterpret_cast<sockaddr*>(&address);
    if (bind(listener_, generic, size) != 0 || listen(listener_, 64) != 0 ||
        getsockname(listener_, generic, &size) != 0)
        throw std::runtime_error("no HTTP peer");
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { serve(); });
}

HttpPeer::~HttpPeer() {
    ending_ = true;
    thread_.join();
    close(listener_);
}

std::vector<std::string> HttpPeer::requests() const {
    const std::lock_guard lock(guard_);
    return requests_;
}

HttpPeer::Answer HttpPeer::ok(const std::string& body) {
    return status("200 OK", "", body);
}

HttpPeer::Answer HttpPeer::status(const std::string& codeAndReason, const std::string& headers,
                                  const std::string& body) {
    return {"HTTP/1.0 " + codeAndReason + "\r\n" + headers + "Content-Length: " + std::to_string(body.size()) +
            "\r\n\r\n" + body};
}

void HttpPeer::serve() {
    while (waitForInput(listener_, ending_)) {
        const int connection = accept(listener_, nullptr, nullptr);
        if (connection < 0) continue;
        ++connections_;
        current_ = connection;
        for (bool isKept = false; serveOne(connection, isKept); isKept = true)
            continue;
        current_ = -1;
        close(connection);
    }
}

bool HttpPeer::serveOne(int connection, bool isKept) {
    std::string request;
    std::array<char, 65536> buffer{};
    while (!isWhole(request)) {
        pollfd inputs[] = {{connection, POLLIN, 0}, {listener_, POLLIN, 0}};
        const nfds_t watched = isKept && request.empty() ? 2 : 1;
        while (!ending_ && poll(inputs, watched, 20) == 0)
            continue;
        if (ending_ || inputs[0].revents == 0) return false;
        const ssize_t got = recv(connection, buffer.data(), buffer.size(), 0);
        if (got <= 0) return false;
        request.append(buffer.data(), static_cast<std::size_t>(got));
    }
    return answer(connection, request);
}

bool HttpPeer::answer(int connection, const std::string& request) {
    {
        const std::lock_guard lock(guard_);
        requests_.push_back(request);
    }
    const Answer answer = handler_(request);
    if (!write(connection, answer.Bytes)) return false;
    if (answer.Sent) answer.Sent();
    char byte = 0;
    while (answer.Stalls && waitForInput(connection, ending_))
        if (recv(connection, &byte, 1, 0) <= 0) return false;
    return answer.Keeps;
}

// In steps, so that a reader who stops reading does not hold up the peer's end.
bool HttpPeer::write(int connection, std::string_view bytes) {
    while (!bytes.empty() && !ending_) {
        const ssize_t sent = send(connection, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (sent < 0 && errno != EAGAIN) return false;
        pollfd room{connection, POLLOUT, 0};
        if (sent < 0) poll(&room, 1, 20);
        const auto count = static_cast<std::size_t>(std::max<ssize_t>(sent, 0));
        sent_ += count;
        bytes.remove_prefix(count);
    }
    return bytes.empty();
}

void HttpPeer::say(std::string_view bytes) {
    (void)write(current_, bytes);
}

}  // namespace vell::test
