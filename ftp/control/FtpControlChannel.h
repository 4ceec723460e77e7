// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/errors.h"
#include "ftp/FtpWait.h"
#include "ftp/control/FtpReplyReader.h"
#include "platform/TcpSocket.h"

namespace vell {

struct FtpContext;

// How a reply is awaited.
struct FtpReading {
    std::size_t Enough = 0;     // so many characters are judged without waiting for the reply's end; 0: the whole
    int Late = 0;               // a code that answers an earlier command at most, and is dropped
    FtpWait::Condition Gone{};  // ends the wait, with nothing recorded
    FtpWait::Limit Limit = FtpWait::Limit::Asking;
};

// The control connection: command lines out, replies in. Owns the socket that the log calls wscControl.
//
// Replies are taken in their order; those behind the awaited one are kept as long as the command under way may be owed
// them. What the server says beyond that, empty lines included, is told and dropped; a 421 ends the session whenever it
// comes. A session with a command that was not answered to the end is out of step: abandonUnanswered() closes it.
class FtpControlChannel : private TcpSocketEvents {
  public:
    using Codes = std::initializer_list<int>;

    // `transferAborted` is called when a reply 426 arrives, before the connection is closed for it.
    FtpControlChannel(FtpContext& context, std::function<void()> transferAborted);

    // Connects, raising StateChanged up to Connected. False: the error is recorded.
    [[nodiscard]] bool open(std::string_view host, std::uint16_t port);
    void close();
    [[nodiscard]] bool isOpen() const { return socket_->State() == SocketState::Connected; }

    // Sends one line; `shown` is what ReplyMessage tells of it. False, and the error recorded, without a connection.
    [[nodiscard]] bool send(std::string_view line, std::string_view shown);
    // The code of the next reply; 0, with the error recorded, when none comes. A code that is none of `expected` is
    // recorded, too; but a 226 that is not awaited can only be the second end of a transfer, and is dropped.
    [[nodiscard]] int reply(Codes expected, const FtpReading& how);
    [[nodiscard]] int command(std::string_view line, Codes expected, const FtpReading& how = {});
    // Has the command sent last, or the greeting, not had its final reply?
    [[nodiscard]] bool isUnanswered() const { return unanswered_; }
    // To be called when nobody waits any more: closes a session that is out of step.
    void abandonUnanswered();
    // Waits, without a limit, for the end of a reply that was judged by its first characters and has several lines.
    [[nodiscard]] bool awaitEndOfReply();

    // Of the reply that was taken last.
    [[nodiscard]] const std::string& replyText() const { return last_.Text; }
    // The last piece of text that arrived.
    [[nodiscard]] const std::string& lastServerResponse() const { return lastServerResponse_; }
    [[nodiscard]] std::string localIP() const { return socket_->LocalIP(); }
    [[nodiscard]] std::string peerIP() const { return socket_->RemoteHostIP(); }

  private:
    void Connected() override;
    void DataArrival(std::size_t bytes) override;
    void PeerClosed() override;
    void SocketError(std::int32_t number, const std::string& description) override;

    void raiseProgress();
    void collectReplies();
    void receive(FtpReply reply);
    [[nodiscard]] bool ready(std::size_t enough) const;
    [[nodiscard]] FtpReply take();
    void settle(int code);
    void dropUnowed();
    void lose(std::int32_t number, std::string_view description);
    void recordLoss();

    FtpContext& context_;
    std::function<void()> transferAborted_;
    std::unique_ptr<TcpSocket> socket_;
    std::int32_t nextStep_ = 0;  // of those of connecting, to be told
    FtpReplyReader reader_;
    std::deque<FtpReply> replies_;
    bool inMidReply_ = false;          // what came last announces another reply
    bool restBelongsToTaken_ = false;  // the reply being read was judged already
    FtpReply last_;
    std::string lastServerResponse_;
    bool unanswered_ = false;
    std::size_t dropped_ = 0;  // replies, since the last command
    int farewell_ = 0;         // 421 or 426 once it came
    std::optional<RunTimeError> loss_;
};

}  // namespace vell
