// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

#include "tests/support/TempFolder.h"

namespace vell::test {

// A program that has ended.
struct Ended {
    int Code = -1;  // below 0 the signal that ended it
    std::string Out, Errors;
};

// A program, found along the path, whose input was written ahead. It has ended when this object goes, with whatever it
// has started, and when the test dies.
class ChildProcess {
  public:
    explicit ChildProcess(std::vector<std::string> words, const std::string& input = "");
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    void send(int signal) const;
    [[nodiscard]] bool isRunning();
    // The most memory that it has had so far.
    [[nodiscard]] long peakKilobytes() const;
    // Waits for the first line of its output; what there is of it when it ends before.
    [[nodiscard]] std::string firstLine();
    // Waits for its end.
    Ended end();

  private:
    TempFolder streams_;
    pid_t pid_ = 0;
    int status_ = -1;
};

}  // namespace vell::test
