// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/EventLoop.h"
#include "platform/TcpSocket.h"

namespace vell::test {

// An FTP server that does what the test tells it to, right or wrong, on the test's own event loop and clock. It serves
// one control connection. Without orders it logs everybody in, and says 200 to everything else.
class ScriptedServer : private TcpSocketEvents {
  public:
    ScriptedServer(Sockets& sockets, EventLoop& loop);
    ~ScriptedServer() override { loop_.KillTimer(timer_); }

    // What it does at a command ("" is the greeting): steps with "|" between them, each done when the one before is.
    //   150 text  this line      >22  this text, no line end     ~500  nothing for 500 milliseconds
    //   +bytes    these on the data connection, which is opened for it     =  end of the data
    //   !         closes the control connection
    void on(const std::string& command, const std::string& steps) { script_[command] = steps; }
    [[nodiscard]] std::uint16_t port() const { return control_->LocalPort(); }

    bool splitsReplies = false;  // sends them byte by byte
    std::vector<std::string> commands;

  private:
    // Both sockets tell it here.
    void Connected() override { run(); }
    void ConnectionRequest() override;
    void DataArrival(std::size_t bytes) override;
    void SendComplete(std::size_t /*bytes*/) override { run(); }
    void SocketError(std::int32_t /*number*/, const std::string& /*description*/) override {}

    void obey(const std::string& line);
    void run();
    // True when it is done; else it is tried again after the next event.
    [[nodiscard]] bool perform(const std::string& step);
    [[nodiscard]] bool say(std::string_view text);
    [[nodiscard]] bool pause(int milliseconds);
    [[nodiscard]] bool dataReady();

    EventLoop& loop_;
    std::map<std::string, std::string> script_;
    std::deque<std::string> due_;
    std::size_t said_ = 0;  // characters of the step under way
    EventLoop::TimerId timer_ = 0;
    bool paused_ = false;
    std::string received_;
    std::uint16_t dataPort_ = 0;
    std::unique_ptr<TcpSocket> data_;
    std::unique_ptr<TcpSocket> control_;
};

}  // namespace vell::test
