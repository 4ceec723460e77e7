// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace vell {

class ByteBlock;

// The numbers are the socket component's own.
enum class SocketState {
    Closed = 0,
    Open = 1,
    Listening = 2,
    ConnectionPending = 3,
    ResolvingHost = 4,
    HostResolved = 5,
    Connecting = 6,
    Connected = 7,
    Closing = 8,  // the peer has closed; what it sent before can still be read
    Error = 9,
};

// What a socket tells its owner. All of it comes from the event loop's yields, never from inside a call to the socket.
class TcpSocketEvents {
  public:
    virtual ~TcpSocketEvents() = default;
    virtual void Connected() {}
    // A peer asks to be connected to a listening socket; TcpSocket::Accept takes it.
    virtual void ConnectionRequest() {}
    // `bytes` can be read now. What is not read is told again only with what comes after it.
    virtual void DataArrival(std::size_t bytes) = 0;
    // All that SendData was given has left; `bytes` of it since the last such event.
    virtual void SendComplete(std::size_t /*bytes*/) {}
    // The peer has closed. Comes after the last DataArrival.
    virtual void PeerClosed() {}
    // The state is Error. `number` is the socket component's (10061 for a refused connection, on every system).
    virtual void SocketError(std::int32_t number, const std::string& description) = 0;
};

// One TCP socket component. Calls that the state does not allow, and failures of the system at once, raise
// RunTimeError with the component's number (40006 "wrong protocol or connection state", 10048 and so on).
class TcpSocket {
  public:
    virtual ~TcpSocket() = default;

    [[nodiscard]] virtual SocketState State() const = 0;

    // Starts resolving and connecting; the states tell how far it is. A name stands for its IPv4 addresses, which are
    // all tried. Allowed when closed.
    virtual void Connect(std::string_view host, std::uint16_t port) = 0;
    // Listens at `localAddress` (empty: every one) on a port of the system's choice. Allowed when closed.
    virtual void Listen(std::string_view localAddress) = 0;
    // Only a peer at this address is let in; others are turned away unseen. Empty lets in all. Kept until Close.
    virtual void ExpectPeer(std::string_view address) = 0;
    // Takes the peer that ConnectionRequest told of; listening ends.
    virtual void Accept() = 0;

    virtual void SendData(std::string_view bytes) = 0;
    // Takes up to `most` of the bytes that have arrived; empty when there are none.
    [[nodiscard]] virtual std::string GetData(std::size_t most) = 0;
    // Takes a block of them without copying any: what `block` held is gone, and its storage is used for what comes
    // next. False when there are none.
    [[nodiscard]] virtual bool TakeBlock(ByteBlock& block) = 0;
    // What has arrived is acknowledged now, not with what is sent next: the peer may say no more before it knows. For a
    // dialogue in short lines; where the system cannot be told so, nothing happens.
    virtual void AcknowledgeNow() = 0;
    // Bytes that have arrived and not been read, and bytes given to SendData that have not left.
    [[nodiscard]] virtual std::size_t BytesReceived() const = 0;
    [[nodiscard]] virtual std::size_t BytesToSend() const = 0;

    // Closes at once, in every state; no event comes after it.
    virtual void Close() = 0;

    // Numeric addresses; empty (0) when the socket has none.
    [[nodiscard]] virtual std::string LocalIP() const = 0;
    [[nodiscard]] virtual std::uint16_t LocalPort() const = 0;
    [[nodiscard]] virtual std::string RemoteHostIP() const = 0;
};

// Makes sockets on the program's event loop.
class Sockets {
  public:
    virtual ~Sockets() = default;
    // `events` must outlive the socket.
    [[nodiscard]] virtual std::unique_ptr<TcpSocket> Make(TcpSocketEvents& events) = 0;
};

}  // namespace vell
