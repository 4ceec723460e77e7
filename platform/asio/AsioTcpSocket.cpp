// SPDX-License-Identifier: MIT
#include "platform/asio/AsioTcpSocket.h"

#include <utility>

#include "platform/asio/AsioEventLoop.h"
#include "platform/asio/SocketNumbers.h"

namespace vell {

using asio::ip::tcp;

namespace {

// An IPv4 peer of an IPv6 socket is an IPv4 peer.
asio::ip::address plain(const asio::ip::address& address) {
    if (!address.is_v6() || !address.to_v6().is_v4_mapped()) return address;
    return asio::ip::make_address_v4(asio::ip::v4_mapped, address.to_v6());
}

asio::ip::address numeric(std::string_view text) {
    std::error_code problem;
    const auto address = asio::ip::make_address(text, problem);
    if (problem) throw socketError(socket_number::AddressNotAvailable);
    return plain(address);
}

std::optional<tcp::endpoint> unlessGone(const tcp::endpoint& end, const std::error_code& problem) {
    return problem ? std::nullopt : std::optional(end);
}

std::string textOf(const std::optional<tcp::endpoint>& end) {
    return end ? plain(end->address()).to_string() : std::string();
}

}  // namespace

AsioTcpSocket::AsioTcpSocket(AsioEventLoop& loop, HostResolver resolver, std::shared_ptr<BlockPool> blocks,
                             TcpSocketEvents& events)
    : loop_(loop), resolver_(std::move(resolver)), blocks_(std::move(blocks)), events_(events) {}

AsioTcpSocket::~AsioTcpSocket() {
    AsioTcpSocket::Close();
}

void AsioTcpSocket::Connect(std::string_view host, std::uint16_t port) {
    mustBe(SocketState::Closed, socket_number::InvalidOp);
    // Systems differ in what they make of these two.
    if (host.empty() || port == 0) throw socketError(socket_number::AddressNotAvailable);
    auto connector = std::make_shared<SocketConnector>(loop_, *this);
    connector->start(std::string(host), port, resolver_);
    connector_ = std::move(connector);
    state_ = SocketState::ResolvingHost;
}

void AsioTcpSocket::Listen(std::string_view localAddress) {
    mustBe(SocketState::Closed, socket_number::InvalidOp);
    const auto address = localAddress.empty() ? asio::ip::address(asio::ip::address_v4::any()) : numeric(localAddress);
    auto listener = std::make_shared<SocketListener>(loop_.context(), *this);
    local_ = listener->start(address);
    listener_ = std::move(listener);
    state_ = SocketState::Listening;
}

void AsioTcpSocket::ExpectPeer(std::string_view address) {
    expected_ = address.empty() ? std::nullopt : std::optional(numeric(address));
}

void AsioTcpSocket::Accept() {
    mustBe(SocketState::ConnectionPending, socket_number::InvalidOp);
    adopt(*std::exchange(pending_, std::nullopt));
}

void AsioTcpSocket::SendData(std::string_view bytes) {
    mustBe(SocketState::Connected, socket_number::BadState);
    stream_->send(bytes);
}

std::string AsioTcpSocket::GetData(std::size_t most) {
    return stream_ ? stream_->take(most) : std::string();
}

bool AsioTcpSocket::TakeBlock(ByteBlock& block) {
    return stream_ && stream_->takeBlock(block);
}

void AsioTcpSocket::AcknowledgeNow() {
    if (stream_) stream_->acknowledgeNow();
}

std::size_t AsioTcpSocket::BytesReceived() const {
    return stream_ ? stream_->unread() : 0;
}

std::size_t AsioTcpSocket::BytesToSend() const {
    return stream_ ? stream_->unsent() : 0;
}

void AsioTcpSocket::Close() {
    if (const auto connector = std::exchange(connector_, nullptr)) connector->stop();
    if (const auto listener = std::exchange(listener_, nullptr)) listener->stop();
    if (const auto stream = std::exchange(stream_, nullptr)) stream->stop();
    pending_.reset();
    expected_.reset();
    local_.reset();
    remote_.reset();
    state_ = SocketState::Closed;
}

std::string AsioTcpSocket::LocalIP() const {
    return textOf(local_);
}

std::uint16_t AsioTcpSocket::LocalPort() const {
    return local_ ? local_->port() : std::uint16_t{0};
}

std::string AsioTcpSocket::RemoteHostIP() const {
    return textOf(remote_);
}

// The owner's handlers come last in each of these: the socket may be gone after them.

void AsioTcpSocket::onProgress(SocketState reached) {
    state_ = reached;
}

void AsioTcpSocket::onConnected(tcp::socket socket) {
    connector_.reset();
    std::error_code problem;
    local_ = unlessGone(socket.local_endpoint(problem), problem);
    remote_ = unlessGone(socket.remote_endpoint(problem), problem);
    adopt(std::move(socket));
    events_.Connected();
}

bool AsioTcpSocket::letsIn(const asio::ip::address& peer) const {
    return !expected_ || plain(peer) == *expected_;
}

void AsioTcpSocket::onPeer(tcp::socket peer, const tcp::endpoint& from) {
    listener_.reset();
    // Who listens at one address has it already.
    std::error_code problem;
    if (local_->address().is_unspecified()) local_ = unlessGone(peer.local_endpoint(problem), problem);
    remote_ = from;
    pending_ = std::move(peer);
    state_ = SocketState::ConnectionPending;
    events_.ConnectionRequest();
}

void AsioTcpSocket::onArrived(std::size_t unread) {
    events_.DataArrival(unread);
}

void AsioTcpSocket::onSent(std::size_t bytes) {
    events_.SendComplete(bytes);
}

void AsioTcpSocket::onPeerClosed() {
    state_ = SocketState::Closing;
    events_.PeerClosed();
}

void AsioTcpSocket::onFailed(const RunTimeError& error) {
    state_ = SocketState::Error;
    events_.SocketError(error.Number, error.Description);
}

void AsioTcpSocket::mustBe(SocketState state, std::int32_t otherwise) const {
    if (state_ != state) throw socketError(otherwise);
}

void AsioTcpSocket::adopt(tcp::socket socket) {
    stream_ = std::make_shared<SocketStream>(std::move(socket), *this, blocks_);
    state_ = SocketState::Connected;
    stream_->start();
}

}  // namespace vell
