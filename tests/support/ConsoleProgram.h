// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/TempFolder.h"

namespace vell::test {

// The console program, started on a program folder of the test's own. It has ended when this object goes.
class ConsoleProgram {
  public:
    ConsoleProgram(const TempFolder& folder, std::vector<std::string> arguments, const std::string& input = "") {
        arguments.insert(arguments.begin(), {VELL_CONSOLE, "--folder", folder.text()});
        std::vector<char*> pointers;
        pointers.reserve(arguments.size() + 1);
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        streams_.put("0", input);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        for (int i = 0; i < 3; ++i)
            posix_spawn_file_actions_addopen(&actions, i, (streams_.path() / std::to_string(i)).c_str(),
                                             i == 0 ? O_RDONLY : O_WRONLY | O_CREAT, 0600);
        if (posix_spawn(&pid_, VELL_CONSOLE, &actions, nullptr, pointers.data(), environ) != 0) pid_ = 0;
        posix_spawn_file_actions_destroy(&actions);
    }
    ~ConsoleProgram() {
        send(SIGKILL);
        (void)wait();
    }
    ConsoleProgram(const ConsoleProgram&) = delete;
    ConsoleProgram& operator=(const ConsoleProgram&) = delete;

    void send(int signal) const {
        if (pid_ > 0) kill(pid_, signal);
    }
    // The exit code; below 0 the signal that ended it.
    int wait() {
        int status = -1;
        if (pid_ > 0) waitpid(pid_, &status, 0);
        pid_ = 0;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }
    // What it wrote: the output, and after "!" the error output.
    [[nodiscard]] std::string written() const { return streams_.get("1") + "!" + streams_.get("2"); }

  private:
    TempFolder streams_;
    pid_t pid_ = 0;
};

}  // namespace vell::test
