// SPDX-License-Identifier: MIT
#include "tests/demo/FtpCaller.h"

#include <array>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "tests/demo/HttpCaller.h"

namespace vell::test {

namespace {

std::string rest(std::istream& stream) {
    return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace

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
    const std::string text = reply();
    return text.empty() ? 0 : std::stoi(text.substr(0, 3));
}

std::string FtpCaller::ask(const std::string& command) {
    send(command + "\r\n");
    return reply();
}

int FtpCaller::tell(const std::string& command) {
    send(command + "\r\n");
    return code();
}

int FtpCaller::tellIn(const std::string& directory, const std::string& command) {
    tell("CWD " + directory);
    return tell(command);
}

std::string FtpCaller::passive() {
    const std::string numbers = ask("PASV");
    std::istringstream words(numbers.substr(numbers.find('(') + 1));
    std::array<int, 6> n{};
    char comma = 0;
    for (int& number : n)
        words >> number >> comma;
    return std::to_string(n[0]) + "." + std::to_string(n[1]) + "." + std::to_string(n[2]) + "." + std::to_string(n[3]) +
           ":" + std::to_string(n[4] * 256 + n[5]);
}

std::string FtpCaller::receive(const std::string& command, Way way) {
    if (way == Way::Active) return receiveActive(command);
    auto data = streamTo(passive());
    lastCode_ = tell(command);
    if (lastCode_ != 150) return {};
    std::string bytes = rest(data);
    lastCode_ = code();
    return bytes;
}

std::string FtpCaller::receiveActive(const std::string& command) {
    using asio::ip::tcp;
    asio::io_context loop;
    tcp::acceptor listener(loop, tcp::endpoint(asio::ip::address_v4::loopback(), 0));
    const int port = listener.local_endpoint().port();
    if (tell("PORT 127,0,0,1," + std::to_string(port / 256) + "," + std::to_string(port % 256)) != 200) return {};
    lastCode_ = tell(command);
    if (lastCode_ != 150) return {};
    tcp::iostream data(listener.accept());
    std::string bytes = rest(data);
    lastCode_ = code();
    return bytes;
}

int FtpCaller::store(const std::string& command, std::string_view bytes) {
    auto data = streamTo(passive());
    lastCode_ = tell(command);
    if (lastCode_ != 150) return lastCode_;
    data << bytes << std::flush;
    data.close();
    return lastCode_ = code();
}

}  // namespace vell::test
