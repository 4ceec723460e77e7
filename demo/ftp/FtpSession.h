// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include <asio/awaitable.hpp>
#include <asio/ip/tcp.hpp>

#include "demo/IdleWatch.h"
#include "demo/Journal.h"
#include "demo/Options.h"
#include "demo/ftp/FtpControl.h"
#include "demo/ftp/FtpDataChannel.h"
#include "demo/ftp/FtpFolderCommands.h"

namespace vell::demo {

// One FTP session (RFC 959): the login, the settings of transfers, and the transfers, which run beside the reading of
// commands so that ABOR can end them. Its coroutines keep it alive.
class FtpSession : public std::enable_shared_from_this<FtpSession> {
  public:
    FtpSession(asio::ip::tcp::socket socket, const ClippingsTree& users, const FtpTree& tree, const SlowLine& line,
               const Journal& journal, ListForm form);

    static asio::awaitable<void> run(std::shared_ptr<FtpSession> self);

  private:
    using Handler = void (FtpSession::*)(const std::string& argument);
    using Move = std::function<asio::awaitable<TransferEnd>()>;

    static Handler handlerOf(const std::string& verb);
    asio::awaitable<void> obey(const std::string& line);
    void answer(const std::string& verb, const std::string& argument);
    void endAfterSilence();

    void user(const std::string& name);
    void pass(const std::string& password);
    void quit(const std::string&);
    void noop(const std::string&);
    void superfluous(const std::string&);
    void syst(const std::string&);
    void feat(const std::string&);
    void stat(const std::string&);
    void site(const std::string& argument);
    void type(const std::string& argument);
    void mode(const std::string& argument);
    void stru(const std::string& argument);
    void port(const std::string& argument);
    void pasv(const std::string&);
    void rest(const std::string& argument);
    void retr(const std::string& argument);
    void stor(const std::string& argument);
    void appe(const std::string& argument);
    void list(const std::string& argument);
    void nlst(const std::string& argument);
    void abor(const std::string&);

    // Nothing when the argument leads nowhere.
    [[nodiscard]] std::optional<std::vector<FtpEntry>> entries(std::string argument) const;
    void receive(const std::string& argument, std::ios::openmode mode, std::uintmax_t offset);
    void start(const std::string& what, Move move);
    static asio::awaitable<void> transfer(std::shared_ptr<FtpSession> self, Move move);
    void tellEnd(TransferEnd end);
    asio::awaitable<void> transferEnded();

    const ClippingsTree& users_;
    const FtpTree& tree_;
    const Journal& journal_;
    IdleWatch idle_;
    FtpControl control_;
    FtpDataChannel data_;
    FtpFolderCommands folders_;
    Signal ended_;
    ListForm form_;
    std::string userName_;
    std::uintmax_t restart_ = 0;
    bool isLoggedIn_ = false;
    bool isLeaving_ = false;
    bool isTransferring_ = false;
    bool isAborted_ = false;
};

}  // namespace vell::demo
