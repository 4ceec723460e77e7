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

constexpr int transferComplete = 226;
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
    dropped_ = 0;
    farewell_ = 0;
    loss_.reset();
    if (host.find(':') != std::string_view::npos)
        throw RunTimeError(socket_error::AddressNotAvailable, "FTP needs a server with an IPv4 address.");
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
    if (!std::exchange(unanswered_, true)) dropUnowed();
    dropped_ = 0;
    socket_->SendData(std::string(line) + "\r\n");
    context_.Events.ReplyMessage(std::string(shown) + "\r\n");
    return true;
}

int FtpControlChannel::command(std::string_view line, Codes expected, const FtpReading& how) {
    return send(line, line) ? reply(expected, how) : 0;
}

int FtpControlChannel::reply(Codes expected, const FtpReading& how) {
    const auto over = [&] { return !isOpen() || (how.Gone && how.Gone()); };
    for (;;) {
        if (!context_.Wait.until([&] { return ready(how.Enough); }, over, how.Limit)) {
            if (!isOpen()) recordLoss();
            return 0;
        }
        last_ = take();
        const int code = last_.Code;
        const bool fits = std::ranges::find(expected, code) != expected.end();
        if (!fits && (code == transferComplete || (how.Late != 0 && code == how.Late))) continue;
        if (!fits) context_.Errors.CheckReplyCode(code);
        if (!isPreliminary(code)) settle(code);
        return code;
    }
}

// The command is answered; what stands behind its final reply is owed to nobody.
void FtpControlChannel::settle(int code) {
    unanswered_ = false;
    if (code == serviceClosing) farewell_ = code;
    dropUnowed();
    if (farewell_ != 0) close();
}

void FtpControlChannel::dropUnowed() {
    replies_.clear();
    if (!reader_.pending().empty()) restBelongsToTaken_ = true;
}

void FtpControlChannel::abandonUnanswered() {
    if (unanswered_) close();
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
    return !replies_.empty() || (enough != 0 && !restBelongsToTaken_ && reader_.pending().size() >= enough);
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

void FtpControlChannel::DataArrival(std::size_t /*bytes*/) {
    trapStep(context_.Services.Errors, "wscControl_DataArrival()", [this] {
        while (socket_->BytesReceived() > 0) {
            lastServerResponse_ = socket_->GetData(blockSize);
            context_.Wait.reset();
            reader_.feed(lastServerResponse_);
            collectReplies();
        }
        // A server may hold back the next piece until it knows that this one came, some for 40 ms. What we say next
        // tells it, too, but we say nothing before a reply's end.
        if (inMidReply_ || !reader_.pending().empty()) socket_->AcknowledgeNow();
    });
}

void FtpControlChannel::collectReplies() {
    while (auto reply = reader_.next())
        receive(std::move(*reply));
    if (reader_.overlong() || replies_.size() + dropped_ > mostUnreadReplies)
        lose(socket_error::MessageTooBig, "The server's reply is too long.");
}

void FtpControlChannel::receive(FtpReply reply) {
    const std::string message = reply.Text + "\r\n";
    const int code = reply.Code;
    inMidReply_ = isPreliminary(code);
    const bool isRest = std::exchange(restBelongsToTaken_, false);
    if (isRest || !unanswered_ || reply.Text.empty())
        ++dropped_;
    else
        replies_.push_back(std::move(reply));
    if (code == serviceClosing || code == transferAbortedCode) farewell_ = code;
    if (code == transferAbortedCode) transferAborted_();
    if (code == transferAbortedCode || (code == serviceClosing && !unanswered_)) close();
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
