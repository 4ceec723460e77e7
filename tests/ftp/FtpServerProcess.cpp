// SPDX-License-Identifier: MIT
#include "tests/ftp/FtpServerProcess.h"

#include <array>
#include <cstdlib>
#include <stdexcept>

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vell::test {

FtpServerProcess::FtpServerProcess(const std::string& server, const TempFolder& root, std::uint16_t port) {
    constexpr const char* python = "/usr/bin/python3";  // Debian's own, which finds Debian's modules
    const std::string configuration = configuration_.text() + "/server.conf";
    const std::string wanted = std::to_string(port);
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
    child_ = fork();
    if (child_ == 0) {
        setpgid(0, 0);                     // with a process of its own for every session, which shall end with it
        prctl(PR_SET_PDEATHSIG, SIGKILL);  // a test that dies takes its servers along
        dup2(ends[1], 1);
        execl(python, python, "-W", "ignore", VELL_REAL_SERVER, server.c_str(), root.path().c_str(),
              configuration.c_str(), port == 0 ? nullptr : wanted.c_str(), nullptr);
        _exit(127);
    }
    close(ends[1]);
    std::array<char, 8> text{};
    const auto length = read(ends[0], text.data(), text.size() - 1);
    close(ends[0]);
    if (length <= 0) throw std::runtime_error(server + " did not start");
    port_ = static_cast<std::uint16_t>(std::atoi(text.data()));
}

FtpServerProcess::~FtpServerProcess() {
    kill(-child_, SIGKILL);
    waitpid(child_, nullptr, 0);
}

}  // namespace vell::test
