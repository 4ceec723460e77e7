// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>

#include <asio/ip/tcp.hpp>

#include "platform/TcpSocket.h"
#include "platform/asio/SocketConnector.h"
#include "platform/asio/SocketListener.h"
#include "platform/asio/SocketStream.h"

namespace vell {

class AsioEventLoop;

// A socket that is first a connector or a listener and then a stream. Each of them lives until its last operation has
// come back; stopped, it is silent, so that the socket may be closed or destroyed at any time, its own events included.
class AsioTcpSocket final : public TcpSocket,
                            public SocketConnector::Owner,
                            public SocketListener::Owner,
                            public SocketStream::Owner {
  public:
    AsioTcpSocket(AsioEventLoop& loop, HostResolver resolver, std::shared_ptr<BlockPool> blocks,
                  TcpSocketEvents& events);
    ~AsioTcpSocket() override;
    AsioTcpSocket(const AsioTcpSocket&) = delete;
    AsioTcpSocket& operator=(const AsioTcpSocket&) = delete;

    [[nodiscard]] SocketState State() const override { return state_; }
    void Connect(std::string_view host, std::uint16_t port) override;
    void Listen(std::string_view localAddress) override;
    void ExpectPeer(std::string_view address) override;
    void Accept() override;
    void SendData(std::string_view bytes) override;
    [[nodiscard]] std::string GetData(std::size_t most) override;
    [[nodiscard]] bool TakeBlock(ByteBlock& block) override;
    void AcknowledgeNow() override;
    [[nodiscard]] std::size_t BytesReceived() const override;
    [[nodiscard]] std::size_t BytesToSend() const override;
    void Close() override;
    [[nodiscard]] std::string LocalIP() const override;
    [[nodiscard]] std::uint16_t LocalPort() const override;
    [[nodiscard]] std::string RemoteHostIP() const override;

  private:
    void onProgress(SocketState reached) override;
    void onConnected(asio::ip::tcp::socket socket) override;
    [[nodiscard]] bool letsIn(const asio::ip::address& peer) const override;
    void onPeer(asio::ip::tcp::socket peer, const asio::ip::tcp::endpoint& from) override;
    void onArrived(std::size_t unread) override;
    void onSent(std::size_t bytes) override;
    void onPeerClosed() override;
    void onFailed(const RunTimeError& error) override;

    void mustBe(SocketState state, std::int32_t otherwise) const;
    // The ends of the connection are known.
    void adopt(asio::ip::tcp::socket socket);

    AsioEventLoop& loop_;
    HostResolver resolver_;
    std::shared_ptr<BlockPool> blocks_;
    TcpSocketEvents& events_;
    SocketState state_ = SocketState::Closed;
    std::optional<asio::ip::address> expected_;
    std::shared_ptr<SocketConnector> connector_;
    std::shared_ptr<SocketListener> listener_;
    std::optional<asio::ip::tcp::socket> pending_;
    std::shared_ptr<SocketStream> stream_;
    std::optional<asio::ip::tcp::endpoint> local_;
    std::optional<asio::ip::tcp::endpoint> remote_;
};

}  // namespace vell
