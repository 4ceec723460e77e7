// SPDX-License-Identifier: MIT
// Runs a command, its output thrown away, and tells what it cost on a line of standard output:
//   vell_bench_measured COMMAND [ARGUMENT...]    wall seconds, processor seconds (user and system), peak memory in KB
// Ends as the command ends. A small program of its own, since a process begins its peak with that of the one which
// started it.
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int cannotRun = 127;

[[noreturn]] void become(char** command) {
    if (const int nowhere = open("/dev/null", O_WRONLY); nowhere >= 0) dup2(nowhere, STDOUT_FILENO);
    execvp(command[0], command);
    std::perror(command[0]);
    std::_Exit(cannotRun);
}

double secondsOf(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) return cannotRun;
    const auto begun = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) become(argv + 1);
    int status = 0;
    rusage used{};
    if (child < 0 || wait4(child, &status, 0, &used) != child) return cannotRun;
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - begun;
    std::printf("%.6f %.6f %ld\n", wall.count(), secondsOf(used.ru_utime) + secondsOf(used.ru_stime), used.ru_maxrss);
    return WIFEXITED(status) ? WEXITSTATUS(status) : cannotRun;
}
