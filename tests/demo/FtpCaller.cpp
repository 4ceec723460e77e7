// SPDX-License-Identifier: MIT
#include "tests/demo/FtpCaller.h"

#include <sstream>
#include <stdexcept>

#include "tests/demo/DemoService.h"

namespace vell::test {

using asio::ip::tcp;

FtpCaller::FtpCaller(const std::string& place, const std::string& user, const std::string& password)
    : control_(streamTo(place)) {
    if (code() != 220) throw std::runtime_error("no greeting");
    tell("USER " + user);
    lastCode_ = tell("PASS " + password);
}

std::string FtpCaller::reply() {
    std::string whole, line;
    do {
        if (!std::getline(control_, line)) break;
        whole += (whole.empty() ? "" : "\n") + line.substr(0, line.find('\r'));
    } while (line.size() < 4 || line[3] != ' ' || !line.starts_with(whole.substr(0, 3)));
    return whole;
}

int FtpCaller::code() {
    return std::stoi("0" + reply().substr(0, 3));
}

std::string FtpCaller::ask(const std::string& command) {
    send(command + "\r\n");
    return reply();
}

int FtpCaller::tell(const std::string& command) {
    send(command + "\r\n");
    return code();
}

tcp::iostream FtpCaller::passive() {
    const std::string text = ask("PASV");
    int high = 0, low = 0;
    if (std::sscanf(text.c_str(), "227 %*[^(](127,0,0,1,%d,%d)", &high, &low) != 2) throw std::runtime_error(text);
    return streamTo("127.0.0.1:" + std::to_string(high * 256 + low));
}

std::string FtpCaller::receive(const std::string& command, Way way) {
    asio::io_context loop;
    tcp::acceptor listener(loop, tcp::endpoint(asio::ip::address_v4::loopback(), 0));
    const int port = listener.local_endpoint().port();
    tcp::iostream data;
    if (way == Way::Passive)
        data = passive();
    else if (tell("PORT 127,0,0,1," + std::to_string(port / 256) + "," + std::to_string(port % 256)) != 200)
        throw std::runtime_error("PORT was refused");
    lastCode_ = tell(command);
    if (lastCode_ != 150) return {};
    if (way == Way::Active) data = tcp::iostream(listener.accept());
    std::string bytes = rest(data);
    lastCode_ = code();
    return bytes;
}

int FtpCaller::store(const std::string& command, std::string_view bytes) {
    auto data = passive();
    lastCode_ = tell(command);
    if (lastCode_ != 150) return lastCode_;
    data << bytes << std::flush;
    data.close();
    return lastCode_ = code();
}

}  // namespace vell::test
