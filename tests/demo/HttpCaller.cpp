// SPDX-License-Identifier: MIT
#include "tests/demo/HttpCaller.h"

#include <stdexcept>

namespace vell::test {

asio::ip::tcp::iostream streamTo(const std::string& place) {
    const auto colon = place.rfind(':');
    asio::ip::tcp::iostream stream;
    stream.expires_after(patience);
    stream.connect(place.substr(0, colon), place.substr(colon + 1));
    if (!stream) throw std::runtime_error("cannot reach " + place);
    stream.socket().set_option(asio::ip::tcp::no_delay(true));
    return stream;
}

HttpReply HttpCaller::reply(bool withBody) {
    HttpReply reply;
    std::size_t size = 0;
    for (std::string line; std::getline(stream_, line) && line != "\r";) {
        if (reply.Head.empty()) reply.Status = std::stoi(line.substr(line.find(' ')));
        if (line.starts_with("Content-Length: ")) size = std::stoul(line.substr(16));
        reply.Head += line + "\n";
    }
    reply.Body.resize(withBody ? size : 0);
    stream_.read(reply.Body.data(), static_cast<std::streamsize>(reply.Body.size()));
    if (!stream_ && !reply.Body.empty()) throw std::runtime_error("the body was cut");
    return reply;
}

bool HttpCaller::isClosed() {
    return stream_.get() == std::char_traits<char>::eof() && stream_.error() == asio::error::eof;
}

HttpReply get(const std::string& place, const std::string& address) {
    HttpCaller caller(place);
    caller.send("GET " + address + " HTTP/1.0\r\n\r\n");
    return caller.reply();
}

HttpReply post(const std::string& place, const std::string& address, const std::string& body) {
    HttpCaller caller(place);
    caller.send("POST " + address + " HTTP/1.0\r\nContent-Type: application/x-www-form-urlencoded\r\nContent-Length: " +
                std::to_string(body.size()) + "\r\n\r\n" + body);
    return caller.reply();
}

}  // namespace vell::test
