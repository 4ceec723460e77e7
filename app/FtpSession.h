// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "log/EventLog.h"

namespace vell {

class TransferProgress;
struct Session;

// The FTP session of a run.
class FtpSession {
  public:
    FtpSession(TransferProgress& progress, EventLog& log);

    // Opens the session and goes to the folder of clippings.
    [[nodiscard]] bool open();
    [[nodiscard]] bool download(const std::string& name, const std::string& localPath);
    [[nodiscard]] bool StopFTP(bool ask);

  private:
    TransferProgress& progress_;
    EventLog& log_;
};

}  // namespace vell
