// SPDX-License-Identifier: MIT
#include "tests/demo/DemoProcess.h"

#include <csignal>
#include <sstream>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vell::test {

namespace {

std::vector<std::string> serviceWords(const std::filesystem::path& root, const std::filesystem::path& ready,
                                      const std::vector<std::string>& options) {
    std::vector<std::string> words{VELL_DEMO_SERVICE, "--root", root.string(), "--ready-file",
                                   ready.string(),    "--for",  "60"};
    words.insert(words.end(), options.begin(), options.end());
    return words;
}

}  // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& words) {
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (const auto& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    const std::string out = folder_.text() + "/out", errors = folder_.text() + "/errors";
    posix_spawn_file_actions_addopen(&actions, 1, out.c_str(), O_WRONLY | O_CREAT, 0600);
    posix_spawn_file_actions_addopen(&actions, 2, errors.c_str(), O_WRONLY | O_CREAT, 0600);
    const int problem = posix_spawnp(&id_, arguments.front(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (problem != 0) throw std::runtime_error("cannot start " + words.front());
}

ChildProcess::~ChildProcess() {
    if (!isRunning()) return;
    signal(SIGKILL);
    waitpid(id_, &status_, 0);
}

void ChildProcess::signal(int number) const {
    if (id_ > 0) kill(id_, number);
}

bool ChildProcess::isRunning() {
    if (id_ > 0 && waitpid(id_, &status_, WNOHANG) == id_) id_ = 0;
    return id_ > 0;
}

Ended ChildProcess::end() {
    if (id_ > 0) waitpid(id_, &status_, 0);
    id_ = 0;
    return {WIFEXITED(status_) ? WEXITSTATUS(status_) : -1, folder_.get("out"), folder_.get("errors")};
}

Ended run(const std::vector<std::string>& words) {
    return ChildProcess(words).end();
}

DemoProcess::DemoProcess(const std::filesystem::path& root, const std::vector<std::string>& options)
    : process_(serviceWords(root, folder_.path() / "ready", options)) {
    while (!folder_.has("ready")) {
        if (!process_.isRunning()) throw std::runtime_error("no service: " + process_.end().Errors);
        std::this_thread::sleep_for(std::chrono::milliseconds{5});
    }
    std::string http, ftp;
    std::istringstream(folder_.get("ready")) >> http >> http_ >> ftp >> ftp_;
    if (http != "http" || ftp != "ftp") throw std::runtime_error("not as expected: " + folder_.get("ready"));
}

Ended DemoProcess::stop(int signalNumber) {
    process_.signal(signalNumber);
    return process_.end();
}

}  // namespace vell::test
