// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "app/progress/FtpProgress.h"
#include "ftp/CFtpConnection.h"
#include "ftp/TimeoutCounter.h"
#include "log/EventLog.h"

namespace vell {

class MainView;
class PartFile;
class TransferProgress;
struct Platform;
struct Session;

// The FTP session of a run: brought up with retries, brought up again when it was lost between two files, and closed.
class FtpSession {
  public:
    FtpSession(Session& session, const Platform& platform, MainView& view, TransferProgress& progress, EventLog& log,
               std::chrono::milliseconds paintInterval);

    // Opens the session and goes to the folder of clippings.
    [[nodiscard]] bool open();
    // Fetches a file to the part, from `offset` on, which is the part's length. Of a file of known length a server need
    // not confirm that it was sent.
    [[nodiscard]] bool download(const std::string& name, PartFile& part, std::int64_t offset,
                                std::optional<std::int64_t> expectedLength);
    // Closes the session. A transfer that is under way is ended only when the user says so; without asking it goes on,
    // which is a failure.
    [[nodiscard]] bool StopFTP(bool ask);
    // Ends whatever is under way, asking nobody.
    void breakOff() { m_objFTP_.BreakeConnection(); }

  private:
    [[nodiscard]] bool StartFTP();
    [[nodiscard]] bool connect();
    void tellFailure();
    [[nodiscard]] bool isUp();
    [[nodiscard]] bool refusedToResume() const;

    Session& session_;
    const Platform& platform_;
    MainView& view_;
    TransferProgress& progress_;
    EventLog& log_;
    FtpProgress handlers_;
    TimeoutCounter seconds_;
    CFtpConnection m_objFTP_;
};

}  // namespace vell
