// SPDX-License-Identifier: MIT
// Prints a document with CUPS: Acrord32.exe /p /h FILE. The switches are those of the PDF reader of that name, which
// the program starts for printing where there is one. The exit code is lp's.

#include <cerrno>
#include <cstring>
#include <iostream>
#include <string>
#include <string_view>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int usageError = 2;
constexpr int notStarted = 127;

int print(std::string file) {
    std::string program = "lp", endOfOptions = "--";
    char* const arguments[] = {program.data(), endOfOptions.data(), file.data(), nullptr};
    pid_t child = 0;
    if (const int error = posix_spawnp(&child, "lp", nullptr, nullptr, arguments, environ); error != 0) {
        std::cerr << "Acrord32.exe: lp: " << std::strerror(error) << '\n';
        return notStarted;
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0)
        if (errno != EINTR) return notStarted;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace

int main(int count, char* arguments[]) {
    std::string file;
    int files = 0;
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "/p" || argument == "/h") continue;
        file = argument;
        ++files;
    }
    if (files != 1) {
        std::cerr << "Usage: Acrord32.exe /p /h FILE\n";
        return usageError;
    }
    return print(file);
}
