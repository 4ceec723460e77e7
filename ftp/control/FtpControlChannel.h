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

// The control connection: command lines out, replies in. Owns the socket that the log calls wscControl.
//
// Replies are taken in their order; those behind the awaited one are kept. A command whose final reply never came (a
// wait that ran out, a transfer that was given up) is still owed one: while any is, a reply that does not fit the
// command under way is taken to be an owed one and dropped. So a slow server does not put the dialogue out of step.
class FtpControlChannel : private TcpSocketEvents {
  public:
    using Codes = std::initializer_list<int>;
    static constexpr std::size_t whole = 0;

    // `transferAborted` is called when a reply 426 arrives, before the connection is closed for it.
    FtpControlChannel(FtpContext& context, std::function<void()> transferAborted);

    // Connects, raising StateChanged up to Connected. False: the error is recorded.
    [[nodiscard]] bool open(std::string_view host, std::uint16_t port);
    void close();
    [[nodiscard]] bool isOpen() const { return socket_->State() == SocketState::Connected; }

    // Sends one line; `shown` is what ReplyMessage tells of it. False, and the error recorded, without a connection.
    [[nodiscard]] bool send(std::string_view line, std::string_view shown);
    // The code of the next reply; 0, with the error recorded, when none comes. A code that is none of `expected` is
    // recorded, too. `enough`: so many characters are judged without waiting for the reply's end.
    [[nodiscard]] int reply(Codes expected, std::size_t enough = whole, const FtpWait::Condition& gone = {},
                            FtpWait::Limit limit = FtpWait::Limit::Asking);
    [[nodiscard]] int command(std::string_view line, Codes expected, std::size_t enough = whole);
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
    [[nodiscard]] bool settlesOwedReply(int code);
    void lose(std::int32_t number, std::string_view description);
    void recordLoss();

    FtpContext& context_;
    std::function<void()> transferAborted_;
    std::unique_ptr<TcpSocket> socket_;
    std::int32_t nextStep_ = 0;  // of those of connecting, to be told
    FtpReplyReader reader_;
    std::deque<FtpReply> replies_;
    bool restBelongsToTaken_ = false;  // the reply being read was judged already
    FtpReply last_;
    std::string lastServerResponse_;
    bool unanswered_ = false;  // the command sent last has not had its final reply
    int owed_ = 0;
    int farewell_ = 0;  // 421 or 426 once it came
    std::optional<RunTimeError> loss_;
};

}  // namespace vell
