// SPDX-License-Identifier: MIT
#include "app/FtpSession.h"

#include "app/TransferProgress.h"

namespace vell {

FtpSession::FtpSession(TransferProgress& progress, EventLog& log) : progress_(progress), log_(log) {}

bool FtpSession::open() {
    constexpr std::string_view text = "This version fetches over HTTP only. Please choose HTTP in Setup.";
    progress_.StatusBar(text);
    log_.WriteLog(text);
    return false;
}

bool FtpSession::download(const std::string& /*name*/, const std::string& /*localPath*/) {
    return false;
}

bool FtpSession::StopFTP(bool /*ask*/) {
    return true;
}

}  // namespace vell
