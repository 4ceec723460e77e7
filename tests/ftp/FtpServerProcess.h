// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include <sys/types.h>

#include "tests/support/TempFolder.h"

namespace vell::test {

// An FTP server that we did not write, as a child of the test: "pyftpdlib" or "proftpd" (realServer.py tells
// of them).
class FtpServerProcess {
  public:
    // On a free port, or on the one that an earlier server had.
    FtpServerProcess(const std::string& server, const TempFolder& root, std::uint16_t port = 0);
    ~FtpServerProcess();
    FtpServerProcess(const FtpServerProcess&) = delete;
    FtpServerProcess& operator=(const FtpServerProcess&) = delete;

    // 0 when the server is not installed.
    [[nodiscard]] std::uint16_t port() const { return port_; }

  private:
    TempFolder configuration_;
    pid_t child_ = -1;
    std::uint16_t port_ = 0;
};

}  // namespace vell::test
