// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "base/errors.h"
#include "ftp/CFtpConnection.h"
#include "ftp/TimeoutCounter.h"
#include "platform/MessageBoxes.h"
#include "platform/SystemTypes.h"
#include "platform/asio/AsioEventLoop.h"
#include "platform/asio/AsioSockets.h"
#include "tests/support/DrivenClock.h"
#include "tests/support/TempFolder.h"

namespace vell::test {

// A connection with everything around it real but the clock and the user; records what it tells.
class FtpFixture : public testing::Test, private CFtpConnectionEvents, MessageBoxes, ErrorLog, TextLog {
  protected:
    // `silence`: how long 10 milliseconds without an event really take. A peer on the same loop needs none.
    explicit FtpFixture(std::chrono::milliseconds silence = {}) : clock({{2004, 3, 7}, 6, 29, 0}, silence) {
        ftp.FtpServer = "127.0.0.1";
        ftp.UserName = "vell";
        ftp.Password = "ruxo";
        ftp.Timeout = 5;
    }

    [[nodiscard]] std::string local(const std::string& name) const { return folder.text() + "\\" + name; }
    // Gone by on the driven clock.
    [[nodiscard]] double seconds() const {
        return static_cast<double>(clock.Steady().time_since_epoch().count()) / 1000;
    }

    DrivenClock clock;
    AsioEventLoop loop{clock};
    AsioSockets sockets{loop};
    SystemFiles files;
    TimeoutCounter counter;
    TempFolder folder;
    std::vector<std::string> told;   // "State 3", "Down 10", "Up 10", and messages without the line end
    std::vector<std::string> asked;  // texts of the message boxes
    std::vector<std::string> logged;
    std::function<void(const std::string&)> onTold = [](const std::string&) {};
    std::function<Answer()> answer = [] { return Answer::No; };
    CFtpConnection ftp{{sockets, loop, files, *this, clock, counter, *this, *this}, *this};

  private:
    // The owner's handlers yield, and then note what they were told, as the program's do.
    void tell(const std::string& what) {
        loop.DoEvents();
        told.push_back(what);
        onTold(what);
    }
    void StateChanged(FtpState state) override { tell("State " + std::to_string(static_cast<int>(state))); }
    void DownloadProgress(std::int32_t bytes) override { tell("Down " + std::to_string(bytes)); }
    void UploadProgress(std::int32_t bytes) override { tell("Up " + std::to_string(bytes)); }
    void ReplyMessage(std::string_view text) override { tell(std::string(text.substr(0, text.size() - 2))); }
    Answer Show(std::string_view text, std::string_view caption, Buttons buttons, BoxIcon icon) override {
        EXPECT_EQ(caption, "Time out");
        EXPECT_EQ(buttons, Buttons::YesNo);
        EXPECT_EQ(icon, BoxIcon::Question);
        asked.emplace_back(text);
        return answer();
    }
    void LogError(const RunTimeError& error, std::string_view procedure) noexcept override {
        logged.push_back(std::string(procedure) + " " + error.Description);
    }
    void WriteLog(std::string_view text) noexcept override { logged.emplace_back(text); }
};

}  // namespace vell::test
