// SPDX-License-Identifier: MIT
#include "platform/asio/SocketNumbers.h"

#include <algorithm>
#include <iterator>

#include <asio/error.hpp>

namespace vell {

namespace {

struct Row {
    std::int32_t Number;
    std::errc Condition;
    const char* Text;
};

constexpr std::errc none{};

// The first row of a number has its text, the first of a condition its number.
constexpr Row rows[] = {
    {10004, std::errc::operation_canceled, "The operation is canceled"},
    {10013, std::errc::permission_denied, "The system does not allow this address or port"},
    {10013, std::errc::operation_not_permitted, ""},
    {10014, std::errc::bad_address, "Invalid argument"},
    {10022, std::errc::invalid_argument, "Invalid argument"},
    {10024, std::errc::too_many_files_open, "Too many sockets are open"},
    {10024, std::errc::too_many_files_open_in_system, ""},
    {10035, std::errc::operation_would_block, "The operation would have to wait"},
    {10036, std::errc::operation_in_progress, "Another operation is in progress"},
    {10037, std::errc::connection_already_in_progress, "The operation is already in progress"},
    {10038, std::errc::not_a_socket, "The descriptor is not a socket"},
    {10040, std::errc::message_size, "The message is too long"},
    {10043, std::errc::protocol_not_supported, "The protocol is not supported"},
    {10047, std::errc::address_family_not_supported, "The kind of address is not supported"},
    {10048, std::errc::address_in_use, "The address is in use"},
    {10049, std::errc::address_not_available, "The address is not available on this machine"},
    {10050, std::errc::network_down, "The network is down"},
    {10051, std::errc::network_unreachable, "The network cannot be reached from this machine"},
    {10052, std::errc::network_reset, "The network dropped the connection"},
    // Sending on a connection that the peer's reset has ended already.
    {10053, std::errc::broken_pipe, "The connection was aborted"},
    {10053, std::errc::connection_aborted, ""},
    {10054, std::errc::connection_reset, "The connection was reset by the other side"},
    {10055, std::errc::no_buffer_space, "No buffer space is available"},
    {10055, std::errc::not_enough_memory, ""},
    {10056, std::errc::already_connected, "The socket is already connected"},
    {10057, std::errc::not_connected, "The socket is not connected"},
    {10060, std::errc::timed_out, "The connection timed out"},
    {10061, std::errc::connection_refused, "The connection was refused"},
    {10065, std::errc::host_unreachable, "The host cannot be reached"},
    {11001, none, "Host not found"},
    {11002, none, "Host not found, try again later"},
    {11003, none, "The host's name cannot be looked up"},
    {11004, none, "The host's name has no address"},
    {40006, none, "Wrong protocol or connection state for the requested operation"},
    {40020, none, "Invalid operation at the current state"},
};

std::int32_t lookupNumber(const std::error_code& code) {
    if (code == asio::error::host_not_found_try_again) return socket_number::HostNotFoundTryAgain;
    if (code == asio::error::no_recovery) return 11003;
    if (code == asio::error::no_data) return 11004;
    return socket_number::HostNotFound;
}

std::int32_t numberOf(const std::error_code& code) {
    const auto& category = code.category();
    if (category == asio::error::get_netdb_category() || category == asio::error::get_addrinfo_category())
        return lookupNumber(code);
    if (code.value() >= 10000) return code.value();  // Winsock's already; no system's errno goes so far
    // By way of the generic category: Asio's own knows fewer conditions than the system has errors.
    const std::error_condition condition = std::system_category().default_error_condition(code.value());
    const auto* row = std::ranges::find_if(rows, [&](const Row& one) { return condition == one.Condition; });
    return row == std::end(rows) ? socket_number::NetworkDown : row->Number;
}

std::string textOf(std::int32_t number) {
    const auto* row = std::ranges::find(rows, number, &Row::Number);
    return row == std::end(rows) ? "Socket error" : row->Text;
}

}  // namespace

RunTimeError socketError(std::int32_t number) {
    return {number, textOf(number)};
}

RunTimeError socketError(const std::error_code& code) {
    const std::int32_t number = numberOf(code);
    return {number, textOf(number), "Vell", code.value()};
}

}  // namespace vell
