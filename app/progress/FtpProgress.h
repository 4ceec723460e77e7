// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include "ftp/CFtpConnectionEvents.h"
#include "log/EventLog.h"
#include "ui/Pacer.h"

namespace vell {

class EventLoop;
class TransferProgress;
struct Session;

// Turns what the FTP client tells into the status line and the log.
class FtpProgress : public CFtpConnectionEvents {
  public:
    FtpProgress(Session& session, TransferProgress& progress, EventLoop& loop, const Clock& clock, EventLog& log,
                std::chrono::milliseconds paintInterval);

    void StateChanged(FtpState state) override;
    // The showing is thinned to what an eye can follow; with the log on every report is shown, as it is logged.
    void DownloadProgress(std::int32_t bytes) override;
    void UploadProgress(std::int32_t /*bytes*/) override {}
    void ReplyMessage(std::string_view text) override;

  private:
    [[nodiscard]] std::string fileCounter() const;

    Session& session_;
    TransferProgress& progress_;
    EventLoop& loop_;
    EventLog& log_;
    Pacer pacer_;
};

}  // namespace vell
