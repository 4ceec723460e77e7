// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "tests/support/ChildProcess.h"

namespace vell::test {

// An FTP server that we did not write, as a child of the test: "pyftpdlib" or "proftpd" (realServer.py tells
// of them).
class FtpServerProcess {
  public:
    // On a free port, or on the one that an earlier server had.
    FtpServerProcess(const std::string& server, const TempFolder& root, std::uint16_t port = 0)
        : process_({"/usr/bin/python3", "-W", "ignore", VELL_REAL_SERVER, server, root.text(),
                    configuration_.text() + "/server.conf", std::to_string(port)}) {}

    // 0 when the server is not installed.
    [[nodiscard]] std::uint16_t port() const { return port_; }

  private:
    TempFolder configuration_;
    ChildProcess process_;
    std::uint16_t port_ = static_cast<std::uint16_t>(std::stoi(process_.firstLine()));
};

}  // namespace vell::test
