// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "ftp/TransferPace.h"
#include "platform/ByteBlock.h"
#include "platform/Files.h"
#include "platform/TcpSocket.h"

namespace vell {

struct FtpContext;

// The data connection and what goes through it: a listing, a file that comes, or one that goes. Owns the socket that
// the log calls wscData. What arrives before the receiver is known waits in the socket.
class FtpDataChannel : private TcpSocketEvents {
  public:
    enum class Transfer { None, Listing, Download, Upload };

    explicit FtpDataChannel(FtpContext& context);

    // Active: lets in `peer` only, and only once.
    void listen(const std::string& localIP, const std::string& peer);
    [[nodiscard]] std::uint16_t localPort() const { return socket_->LocalPort(); }
    // Passive: waits until it is connected. False: the error is recorded.
    [[nodiscard]] bool connect(const std::string& host, std::uint16_t port);

    // What the connection is for; from here on the transfer is in progress.
    void begin(Transfer transfer) { transfer_ = transfer; }
    [[nodiscard]] Transfer transfer() const { return transfer_; }
    // The server has accepted the command: let the data flow.
    void receiveListing();
    // The file outlives the transfer, or the next clear().
    void receiveFile(OutputFile& file, std::int64_t offset);
    void sendBytes(std::string bytes);

    // All data has come or gone, and been dealt with.
    [[nodiscard]] bool ended() const;
    // All that was to come has come: a listing or a file.
    [[nodiscard]] bool received() const { return transfer_ != Transfer::Upload && ended(); }
    // Bytes of the file that are here, or were sent.
    [[nodiscard]] std::int64_t count() const { return count_; }
    // False once the socket failed or the file could not be written, which was recorded then, or all was cleared.
    [[nodiscard]] bool flows() const { return flowing_ && !failed_; }
    // Waits for the end of the data. False: the error is recorded.
    [[nodiscard]] bool awaitEnd();

    [[nodiscard]] const std::string& listing() const { return listing_; }
    // Closes everything and forgets the transfer, at any time.
    void clear();

  private:
    void Connected() override { sendNext(); }
    void ConnectionRequest() override;
    void DataArrival(std::size_t bytes) override;
    void SendComplete(std::size_t bytes) override;
    void PeerClosed() override;
    void SocketError(std::int32_t number, const std::string& description) override;

    void beginReceiving();
    void receiveAll();
    void receiveBlock(std::string_view block);
    void closeWhenRead();
    void sendNext();
    template <class Body>
    void guarded(std::string_view procedure, Body&& body);

    FtpContext& context_;
    std::unique_ptr<TcpSocket> socket_;
    Transfer transfer_ = Transfer::None;
    bool flowing_ = false;    // the command was accepted, the receiver or the bytes to send are known
    bool receiving_ = false;  // receiveAll is at work, perhaps in the yield of an event it raised
    bool failed_ = false;
    OutputFile* file_ = nullptr;
    std::string listing_;
    std::string outgoing_;
    std::size_t handedOut_ = 0;  // bytes of outgoing_ that the socket was given
    std::int64_t count_ = 0;
    ByteBlock block_;  // the one under receiveAll
    TransferPace pace_;
};

}  // namespace vell
