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

// The console program, started in a folder of the test's own. It has ended when this object goes.
class ConsoleProgram {
  public:
    ConsoleProgram(const TempFolder& folder, std::vector<std::string> arguments, const std::string& input = "")
        : folder_(folder) {
        arguments.insert(arguments.begin(), {VELL_CONSOLE, "--folder", folder.text()});
        std::vector<char*> pointers;
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        folder.put(stream("in"), input);
        posix_spawn_file_actions_t streams;
        posix_spawn_file_actions_init(&streams);
        const char* names[] = {"in", "out", "err"};
        for (int i = 0; i < 3; ++i)
            posix_spawn_file_actions_addopen(&streams, i, (folder.path() / stream(names[i])).c_str(),
                                             i == 0 ? O_RDONLY : O_WRONLY | O_CREAT | O_TRUNC, 0600);
        if (posix_spawn(&pid_, VELL_CONSOLE, &streams, nullptr, pointers.data(), environ) != 0) pid_ = 0;
        posix_spawn_file_actions_destroy(&streams);
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
    // The exit code; less than 0 for the signal that ended it.
    int wait() {
        int status = 0;
        if (pid_ > 0 && waitpid(pid_, &status, 0) == pid_)
            result_ = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
        pid_ = 0;
        return result_;
    }
    [[nodiscard]] std::string out() const { return folder_.get(stream("out")); }
    [[nodiscard]] std::string err() const { return folder_.get(stream("err")); }

  private:
    [[nodiscard]] std::string stream(const char* name) const { return name + std::to_string(number_); }

    inline static int count = 0;
    int number_ = ++count;
    const TempFolder& folder_;
    pid_t pid_ = 0;
    int result_ = -999;
};

}  // namespace vell::test
