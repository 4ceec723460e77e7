// SPDX-License-Identifier: MIT
#include "demo/Endpoint.h"

#include <charconv>
#include <stdexcept>

#include <asio/ip/address.hpp>

namespace vell::demo {

namespace {

std::uint16_t portOf(std::string_view digits) {
    std::uint16_t port = 0;
    const auto [end, problem] = std::from_chars(digits.data(), digits.data() + digits.size(), port);
    if (digits.empty() || problem != std::errc{} || end != digits.data() + digits.size())
        throw std::invalid_argument("\"" + std::string(digits) +
                                    "\" is no port; give a number from 0 to 65535, 0 for "
                                    "a free one");
    return port;
}

std::string addressOf(std::string_view text) {
    if (text == "localhost") return "127.0.0.1";
    if (text.size() > 2 && text.front() == '[' && text.back() == ']') text = text.substr(1, text.size() - 2);
    asio::error_code problem;
    const auto address = asio::ip::make_address(std::string(text), problem);
    if (problem)
        throw std::invalid_argument("\"" + std::string(text) +
                                    "\" is no address; give one in numbers, such as "
                                    "127.0.0.1");
    return address.to_string();
}

}  // namespace

bool Endpoint::isLoopback() const {
    return asio::ip::make_address(Address).is_loopback();
}
bool Endpoint::isIpV4() const {
    return asio::ip::make_address(Address).is_v4();
}

std::string Endpoint::text() const {
    return (isIpV4() ? Address : "[" + Address + "]") + ":" + std::to_string(Port);
}

Endpoint Endpoint::parse(std::string_view text) {
    const auto colon = text.rfind(':');
    if (colon == std::string_view::npos)
        throw std::invalid_argument("\"" + std::string(text) +
                                    "\" has no port; give ADDRESS:PORT, such as "
                                    "127.0.0.1:8080");
    return {addressOf(text.substr(0, colon)), portOf(text.substr(colon + 1))};
}

}  // namespace vell::demo
