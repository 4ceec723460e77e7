// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <sys/types.h>

#include "tests/support/TempFolder.h"

namespace vell::test {

// A program that ran to its end.
struct Ended {
    int ExitCode = -1;
    std::string Out;
    std::string Errors;
};

// A child process with its output in files. It is killed, when it still runs, by the end of the object.
class ChildProcess {
  public:
    explicit ChildProcess(const std::vector<std::string>& words);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    void signal(int number) const;
    [[nodiscard]] bool isRunning();
    // Waits for its end.
    Ended end();

  private:
    TempFolder folder_;
    pid_t id_ = 0;
    int status_ = 0;
};

// Runs a program to its end.
Ended run(const std::vector<std::string>& words);

// The demo service, started on a folder and ready for callers on free ports of loopback.
class DemoProcess {
  public:
    explicit DemoProcess(const std::filesystem::path& root, const std::vector<std::string>& options = {});

    [[nodiscard]] const std::string& http() const { return http_; }  // "127.0.0.1:34567"
    [[nodiscard]] const std::string& ftp() const { return ftp_; }

    // Ends it with a signal.
    Ended stop(int signalNumber);

  private:
    TempFolder folder_;
    ChildProcess process_;
    std::string http_;
    std::string ftp_;
};

}  // namespace vell::test
