// SPDX-License-Identifier: MIT
// Prints a document with CUPS: vell-print /p /h FILE. The switches are those of the PDF reader that prints on another
// system. It becomes lp, so that its exit code and what it says are lp's, and whoever ends it ends that.

#include <cerrno>
#include <cstring>
#include <iostream>
#include <string>
#include <string_view>

#include <unistd.h>

int main(int count, char* arguments[]) {
    constexpr int usageError = 2;
    constexpr int notStarted = 127;
    std::string file;
    int files = 0;
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "/p" || argument == "/h") continue;
        file = argument;
        ++files;
    }
    if (files != 1) {
        std::cerr << "Usage: vell-print /p /h FILE\n";
        return usageError;
    }
    std::string program = "lp", endOfOptions = "--";
    char* const toLp[] = {program.data(), endOfOptions.data(), file.data(), nullptr};
    execvp(program.c_str(), toLp);
    std::cerr << "vell-print: lp: " << std::strerror(errno) << '\n';
    return notStarted;
}
