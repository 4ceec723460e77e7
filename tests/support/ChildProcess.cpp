// SPDX-License-Identifier: MIT
#include "tests/support/ChildProcess.h"

#include <csignal>
#include <fstream>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vell::test {

ChildProcess::ChildProcess(std::vector<std::string> words, const std::string& input) {
    words.insert(words.begin(), {"setpriv", "--pdeathsig", "KILL"});
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    streams_.put("0", input);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (int i = 0; i < 3; ++i)
        posix_spawn_file_actions_addopen(&actions, i, (streams_.path() / std::to_string(i)).c_str(),
                                         i == 0 ? O_RDONLY : O_WRONLY | O_CREAT, 0600);
    posix_spawnattr_t ownGroup;
    posix_spawnattr_init(&ownGroup);
    posix_spawnattr_setflags(&ownGroup, POSIX_SPAWN_SETPGROUP);
    const int problem = posix_spawnp(&pid_, pointers.front(), &actions, &ownGroup, pointers.data(), environ);
    posix_spawnattr_destroy(&ownGroup);
    posix_spawn_file_actions_destroy(&actions);
    if (problem != 0) throw std::runtime_error("cannot start " + words.front());
}

ChildProcess::~ChildProcess() {
    if (pid_ <= 0) return;
    kill(-pid_, SIGKILL);
    waitpid(pid_, &status_, 0);
}

void ChildProcess::send(int signal) const {
    if (pid_ > 0) kill(pid_, signal);
}

bool ChildProcess::isRunning() {
    if (pid_ > 0 && waitpid(pid_, &status_, WNOHANG) == pid_) pid_ = 0;
    return pid_ > 0;
}

long ChildProcess::peakKilobytes() const {
    std::ifstream status("/proc/" + std::to_string(pid_) + "/status");
    for (std::string word; status >> word;)
        if (long peak = 0; word == "VmHWM:" && status >> peak) return peak;
    return 0;
}

std::string ChildProcess::firstLine() {
    std::string out;
    while (out.find('\n') == std::string::npos && isRunning()) {
        std::this_thread::sleep_for(std::chrono::milliseconds{2});
        out = streams_.get("1");
    }
    return out.substr(0, out.find('\n'));
}

Ended ChildProcess::end() {
    if (pid_ > 0) waitpid(pid_, &status_, 0);
    pid_ = 0;
    return {WIFEXITED(status_) ? WEXITSTATUS(status_) : -WTERMSIG(status_), streams_.get("1"), streams_.get("2")};
}

}  // namespace vell::test
