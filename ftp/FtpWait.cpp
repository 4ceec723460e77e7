// SPDX-License-Identifier: MIT
#include "ftp/FtpWait.h"

#include "ftp/FtpErrors.h"
#include "ftp/FtpServices.h"
#include "ftp/FtpSettings.h"
#include "platform/EventLoop.h"
#include "platform/MessageBoxes.h"

namespace vell {

namespace {
constexpr int longestStandstill = 10;  // milliseconds between two looks when nothing happens
}

// The timer runs as long as any wait does, and starts anew where a wait begins or an outer one goes on.
class FtpWait::Turn {
  public:
    explicit Turn(FtpWait& wait) : wait_(wait) {
        ++wait_.depth_;
        wait_.timeout_.TimeoutValue(wait_.settings_.Timeout);
        wait_.timeout_.StartTimer();
    }
    ~Turn() {
        if (--wait_.depth_ > 0)
            wait_.timeout_.StartTimer();
        else
            wait_.timeout_.StopTimer();
    }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

  private:
    FtpWait& wait_;
};

FtpWait::FtpWait(const FtpServices& services, const FtpSettings& settings, FtpErrors& errors)
    : services_(services), settings_(settings), errors_(errors), timeout_(services.Loop, services.Seconds) {}

bool FtpWait::until(const Condition& met, const Condition& gone, Limit limit) {
    const Turn turn(*this);
    for (;;) {
        if (met()) return true;
        if (gone()) return false;
        if (ranOut(limit)) {
            errors_.set(ftp_error::TimedOut);
            return false;
        }
        services_.Loop.WaitForEvents(longestStandstill);
    }
}

bool FtpWait::ranOut(Limit limit) {
    if (limit == Limit::None || !timeout_.Timeout()) return false;
    return limit == Limit::Silent || !settings_.AskOnTimeout || !AskToKeepWaiting();
}

bool FtpWait::AskToKeepWaiting() {
    const auto answer = services_.Boxes.Show(
        "A time-out occurred while communicating with the server."
        "The server took too long to respond.\r\n\r\n"
        "Would you like to wait for server response?",
        "Time out", Buttons::YesNo, BoxIcon::Question);
    if (answer != Answer::Yes) return false;
    timeout_.Reset();
    timeout_.StartTimer();
    return true;
}

}  // namespace vell
