// SPDX-License-Identifier: MIT
#include "ftp/FtpDataChannel.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/ScopedFlag.h"
#include "base/errors.h"
#include "ftp/FtpContext.h"
#include "ftp/FtpSocketLog.h"
#include "platform/Clock.h"

namespace vell {

namespace {

constexpr std::size_t blockSize = 64UL * 1024;
constexpr std::size_t longestListing = 64UL * 1024 * 1024;

// The events count in 32 bits; larger files show as the largest number.
std::int32_t shown(std::int64_t count) {
    return static_cast<std::int32_t>(std::min<std::int64_t>(count, std::numeric_limits<std::int32_t>::max()));
}

}  // namespace

FtpDataChannel::FtpDataChannel(FtpContext& context)
    : context_(context), socket_(context.Services.Net.Make(static_cast<TcpSocketEvents&>(*this))) {}

void FtpDataChannel::listen(const std::string& localIP, const std::string& peer) {
    clear();
    socket_->ExpectPeer(peer);
    socket_->Listen(localIP);
}

bool FtpDataChannel::connect(const std::string& host, std::uint16_t port) {
    clear();
    socket_->Connect(host, port);
    context_.Events.ReplyMessage("Connecting to: " + host + ":" + std::to_string(port) + "\r\n");
    // A short transfer may be over before the connection is looked at.
    const auto connected = [this] {
        return socket_->State() == SocketState::Connected || socket_->State() == SocketState::Closing;
    };
    return context_.Wait.until(connected, [this] { return failed_ || socket_->State() == SocketState::Closed; });
}

void FtpDataChannel::receiveListing() {
    beginReceiving();
}

void FtpDataChannel::beginReceiving() {
    flowing_ = true;
    pace_.begin(context_.Services.Time.Steady());
    guarded("wscData_DataArrival()", [this] { receiveAll(); });
}

void FtpDataChannel::receiveFile(OutputFile& file, std::int64_t offset) {
    file_ = &file;
    count_ = offset;
    beginReceiving();
}

void FtpDataChannel::sendBytes(std::string bytes) {
    outgoing_ = std::move(bytes);
    flowing_ = true;
    sendNext();
}

bool FtpDataChannel::ended() const {
    const SocketState state = socket_->State();
    return flows() && (state == SocketState::Closing || state == SocketState::Closed) && socket_->BytesReceived() == 0;
}

bool FtpDataChannel::awaitEnd() {
    if (context_.Wait.until([this] { return ended(); }, [this] { return !flows(); })) return true;
    if (!flowing_ && !failed_) context_.Errors.MapSocketError(socket_error::Canceled, "The transfer was cancelled.");
    return false;
}

void FtpDataChannel::clear() {
    socket_->Close();
    file_ = nullptr;
    transfer_ = Transfer::None;
    flowing_ = false;
    failed_ = false;
    listing_.clear();
    outgoing_.clear();
    handedOut_ = 0;
    count_ = 0;
}

void FtpDataChannel::ConnectionRequest() {
    guarded("wscData_ConnectionRequest()", [this] {
        socket_->Accept();
        sendNext();
    });
}

void FtpDataChannel::DataArrival(std::size_t /*bytes*/) {
    guarded("wscData_DataArrival()", [this] { receiveAll(); });
}

// The owner may let events happen while it is told of the progress. What arrives then is left to the call that is
// under way, or a fast server would have them nest without end; and the transfer may be over afterwards.
void FtpDataChannel::receiveAll() {
    if (receiving_) return;
    const ScopedFlag receiving(receiving_);
    while (flowing_ && transfer_ != Transfer::Upload && socket_->TakeBlock(block_)) {
        context_.Wait.reset();
        if (!pace_.isFair(block_.size(), context_.Services.Time.Steady()))
            throw RunTimeError(socket_error::TimedOut, "The server sends too slowly.");
        receiveBlock(block_.bytes());
        pace_.wait(context_.Services.Time.Steady());
    }
    closeWhenRead();
}

// Servers may hold back their last reply, for ten seconds or more, until our side of the connection has closed too.
void FtpDataChannel::closeWhenRead() {
    if (!flowing_ || transfer_ == Transfer::Upload) return;
    if (socket_->State() == SocketState::Closing && socket_->BytesReceived() == 0) socket_->Close();
}

void FtpDataChannel::PeerClosed() {
    guarded("wscData_Close()", [this] { closeWhenRead(); });
}

void FtpDataChannel::receiveBlock(std::string_view block) {
    if (transfer_ == Transfer::Listing) {
        if (listing_.size() + block.size() > longestListing)
            throw RunTimeError(socket_error::MessageTooBig, "The listing is too long.");
        listing_ += block;
        return;
    }
    file_->Write(block);
    count_ += static_cast<std::int64_t>(block.size());
    context_.Events.DownloadProgress(shown(count_));
}

void FtpDataChannel::SendComplete(std::size_t bytes) {
    guarded("wscData_SendComplete()", [&] {
        if (!flowing_) return;
        context_.Wait.reset();
        count_ += static_cast<std::int64_t>(bytes);
        context_.Events.UploadProgress(shown(count_));
        sendNext();
    });
}

// One block at a time; the end of the file is told by closing.
void FtpDataChannel::sendNext() {
    if (!flowing_ || transfer_ != Transfer::Upload) return;
    if (socket_->State() != SocketState::Connected || socket_->BytesToSend() > 0) return;
    if (handedOut_ == outgoing_.size()) {
        socket_->Close();
        return;
    }
    const auto block = std::string_view(outgoing_).substr(handedOut_, blockSize);
    handedOut_ += block.size();
    socket_->SendData(block);
}

void FtpDataChannel::SocketError(std::int32_t number, const std::string& description) {
    logSocketError(context_.Services.Log, "wscData", number, description);
    context_.Errors.MapSocketError(number, description);
    failed_ = true;
}

// An error ends the transfer: nothing more of it is written or sent.
template <class Body>
void FtpDataChannel::guarded(std::string_view procedure, Body&& body) {
    try {
        body();
    } catch (...) {
        const RunTimeError error = currentError();
        context_.Services.Errors.LogError(error, procedure);
        context_.Errors.MapSocketError(error.Number, error.Description);
        failed_ = true;
        flowing_ = false;
    }
}

}  // namespace vell
