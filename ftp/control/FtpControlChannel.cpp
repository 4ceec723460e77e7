// SPDX-License-Identifier: MIT
#include "ftp/control/FtpControlChannel.h"

#include <algorithm>
#include <utility>

#include "ftp/FtpContext.h"
#include "ftp/FtpSocketLog.h"
#include "ftp/control/FtpArguments.h"

namespace vell {

namespace {

constexpr std::size_t blockSize = 16UL * 1024;
constexpr std::size_t mostUnreadReplies = 256;  // no dialogue leaves more; a flood of them would fill the memory

constexpr int serviceClosing = 421;
constexpr int transferAbortedCode = 426;

bool isPreliminary(int code) {
    return code / 100 == 1;
}

}  // namespace

FtpControlChannel::FtpControlChannel(FtpContext& context, std::function<void()> transferAborted)
    : context_(context),
      transferAborted_(std::move(transferAborted)),
      socket_(context.Services.Net.Make(static_cast<TcpSocketEvents&>(*this))) {}

bool FtpControlChannel::open(std::string_view host, std::uint16_t port) {
    close();
    reader_.clear();
    replies_.clear();
    restBelongsToTaken_ = false;
    owed_ = 0;
    farewell_ = 0;
    loss_.reset();
    socket_->Connect(host, port);
    unanswered_ = true;  // the greeting
    nextStep_ = 0;
    const auto connected = [this] {
        raiseProgress();
        return isOpen() || socket_->State() == SocketState::Closing;  // closing: what it said before may be heard
    };
    const auto gone = [&] { return socket_->State() == SocketState::Closed || socket_->State() == SocketState::Error; };
    if (context_.Wait.until(connected, gone)) return true;
    if (gone()) recordLoss();
    return false;
}

// A step may be over between two looks at the socket; it is told all the same, and before the greeting.
void FtpControlChannel::raiseProgress() {
    const SocketState state = socket_->State();
    if (state < SocketState::ResolvingHost || state > SocketState::Connected) return;
    const FtpState reached = state == SocketState::ResolvingHost ? FtpState::ResolvingHost
                             : isOpen()                          ? FtpState::Connected
                                                                 : FtpState::HostResolved;
    if (nextStep_ > static_cast<std::int32_t>(reached)) return;
    const auto first = static_cast<FtpState>(std::exchange(nextStep_, static_cast<std::int32_t>(reached) + 1));
    context_.Events.StatesChanged(first, reached);
}

void FtpControlChannel::Connected() {
    trapStep(context_.Services.Errors, "wscControl_Connect()", [this] { raiseProgress(); });
}

void FtpControlChannel::close() {
    if (!loss_) loss_.emplace(socket_error::Canceled, "The connection was closed.");
    socket_->Close();
}

bool FtpControlChannel::send(std::string_view line, std::string_view shown) {
    if (!isOpen()) {
        recordLoss();
        return false;
    }
    if (!fitForCommand(line)) throw RunTimeError(socket_error::InvalidArgument, "A command of more than one line.");
    if (std::exchange(unanswered_, true)) ++owed_;
    socket_->SendData(std::string(line) + "\r\n");
    context_.Events.ReplyMessage(std::string(shown) + "\r\n");
    return true;
}

int FtpControlChannel::command(std::string_view line, Codes expected, std::size_t enough) {
    return send(line, line) ? reply(expected, enough) : 0;
}

int FtpControlChannel::reply(Codes expected, std::size_t enough, const FtpWait::Condition& gone, FtpWait::Limit limit) {
    const auto over = [&] { return !isOpen() || (gone && gone()); };
    for (;;) {
        if (!context_.Wait.until([&] { return ready(enough); }, over, limit)) {
            if (!isOpen()) recordLoss();
            return 0;
        }
        last_ = take();
        const int code = last_.Code;
        const bool fits = std::ranges::find(expected, code) != expected.end();
        if (!fits && settlesOwedReply(code)) continue;
        if (!isPreliminary(code)) unanswered_ = false;
        if (fits) return code;
        context_.Errors.CheckReplyCode(code);
        if (code == serviceClosing) close();
        return code;
    }
}

bool FtpControlChannel::awaitEndOfReply() {
    if (last_.Text.size() > 3 && last_.Text[3] != '-') return true;
    const auto ended = [this] { return !restBelongsToTaken_; };
    if (context_.Wait.until(
            ended, [this] { return !isOpen(); }, FtpWait::Limit::None))
        return true;
    recordLoss();
    return false;
}

bool FtpControlChannel::ready(std::size_t enough) const {
    return !replies_.empty() || (enough != whole && !restBelongsToTaken_ && reader_.pending().size() >= enough);
}

FtpReply FtpControlChannel::take() {
    if (replies_.empty()) {
        restBelongsToTaken_ = true;
        const std::string text(reader_.pending());
        return {GetReplyCode(text), text};
    }
    FtpReply reply = std::move(replies_.front());
    replies_.pop_front();
    return reply;
}

bool FtpControlChannel::settlesOwedReply(int code) {
    if (owed_ == 0 || code == serviceClosing || code == transferAbortedCode) return false;
    if (!isPreliminary(code)) --owed_;
    return true;
}

void FtpControlChannel::DataArrival(std::size_t /*bytes*/) {
    trapStep(context_.Services.Errors, "wscControl_DataArrival()", [this] {
        while (socket_->BytesReceived() > 0) {
            lastServerResponse_ = socket_->GetData(blockSize);
            context_.Wait.reset();
            reader_.feed(lastServerResponse_);
            collectReplies();
        }
    });
}

void FtpControlChannel::collectReplies() {
    while (auto reply = reader_.next())
        receive(std::move(*reply));
    if (reader_.overlong() || replies_.size() > mostUnreadReplies)
        lose(socket_error::MessageTooBig, "The server's reply is too long.");
}

void FtpControlChannel::receive(FtpReply reply) {
    const std::string message = reply.Text + "\r\n";
    if (reply.Code == serviceClosing || reply.Code == transferAbortedCode) farewell_ = reply.Code;
    const bool aborted = reply.Code == transferAbortedCode;
    if (!std::exchange(restBelongsToTaken_, false)) replies_.push_back(std::move(reply));
    if (aborted) {
        transferAborted_();
        close();
    }
    context_.Events.ReplyMessage(message);
}

void FtpControlChannel::PeerClosed() {
    if (!loss_) loss_.emplace(socket_error::ConnectionReset, "The server closed the connection.");
}

void FtpControlChannel::SocketError(std::int32_t number, const std::string& description) {
    logSocketError(context_.Services.Log, "wscControl", number, description);
    if (!loss_) loss_.emplace(number, description);
}

void FtpControlChannel::lose(std::int32_t number, std::string_view description) {
    loss_.emplace(number, std::string(description));
    socket_->Close();
}

void FtpControlChannel::recordLoss() {
    if (farewell_ != 0)
        context_.Errors.CheckReplyCode(farewell_);
    else if (loss_)
        context_.Errors.MapSocketError(loss_->Number, loss_->Description);
    else
        context_.Errors.MapSocketError(socket_error::NotConnected, "There is no connection to the server.");
}

}  // namespace vell
