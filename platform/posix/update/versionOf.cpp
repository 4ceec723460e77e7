// SPDX-License-Identifier: MIT
#include "platform/posix/update/versionOf.h"

#include <array>
#include <csignal>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/text.h"
#include "platform/posix/files/FileHandle.h"

namespace vell {

namespace {

pid_t started(const std::string& program, const std::string& answer) {
    std::string name = program, option = "--version";
    const std::array<char*, 3> words{name.data(), option.data(), nullptr};
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, answer.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const int error = posix_spawn(&child, program.c_str(), &files, nullptr, words.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    return error == 0 ? child : 0;
}

// Whether it has, with exit code 0; it has ended in any case.
bool endsWell(pid_t child, std::chrono::milliseconds patience) {
    constexpr std::chrono::milliseconds nap{5};
    int status = 0;
    for (auto waited = nap * 0; waitpid(child, &status, WNOHANG) == 0; waited += nap) {
        if (waited >= patience) kill(child, SIGKILL);
        std::this_thread::sleep_for(nap);
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

std::string versionOf(const std::string& program, const std::string& answer, std::chrono::milliseconds patience) {
    const pid_t child = started(program, answer);
    if (child == 0 || !endsWell(child, patience)) return {};
    const FilePlace place{codePageFromUtf8Lossy(answer), answer};
    return FileHandle(place, O_RDONLY).readAll(place);
}

}  // namespace vell
