// SPDX-License-Identifier: MIT
#include "platform/posix/program/startProgram.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <utility>

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/posix/files/FileHandle.h"

namespace vell {

namespace {

// How the new program finds its surroundings: none of our files, a session of its own (so that an interrupt key meant
// for us does not end it), and no signal ignored or held back.
class Surroundings {
  public:
    Surroundings() {
        posix_spawn_file_actions_init(&files_);
        posix_spawn_file_actions_addopen(&files_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&files_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&files_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addclosefrom_np(&files_, STDERR_FILENO + 1);
        posix_spawnattr_init(&attributes_);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes_, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&attributes_, &signals);
        posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~Surroundings() {
        posix_spawn_file_actions_destroy(&files_);
        posix_spawnattr_destroy(&attributes_);
    }
    Surroundings(const Surroundings&) = delete;
    Surroundings& operator=(const Surroundings&) = delete;

    [[nodiscard]] int spawn(const char* program, char* const* arguments) const {
        pid_t child = 0;
        return posix_spawn(&child, program, &files_, &attributes_, arguments, environ);
    }

  private:
    posix_spawn_file_actions_t files_{};
    posix_spawnattr_t attributes_{};
};

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    result.reserve(texts.size() + 1);
    for (auto& text : texts)
        result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

}  // namespace

int startProgram(const std::string& systemPath, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), systemPath);
    const auto argv = pointers(arguments);
    const Surroundings surroundings;
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return errno;
    const FileHandle reader(ends[0]);
    FileHandle writer(ends[1]);
    // A child between us and the program leaves the program to the system, which collects its end.
    const pid_t between = fork();
    if (between < 0) return errno;
    if (between == 0) {
        const int result = surroundings.spawn(systemPath.c_str(), argv.data());
        _exit(write(writer.get(), &result, sizeof result) == sizeof result ? 0 : 1);
    }
    writer = FileHandle();
    int result = 0;
    const auto told = read(reader.get(), &result, sizeof result);
    while (waitpid(between, nullptr, 0) < 0 && errno == EINTR)
        continue;
    return told == sizeof result ? result : EAGAIN;
}

std::string findProgram(const std::string& name) {
    const char* search = std::getenv("PATH");
    std::string_view folders = search != nullptr ? search : "/usr/local/bin:/usr/bin:/bin";
    while (!folders.empty()) {
        const auto folder = folders.substr(0, folders.find(':'));
        folders.remove_prefix(std::min(folder.size() + 1, folders.size()));
        // An empty or relative entry means where we happen to be, which may be a folder of downloads.
        if (!folder.starts_with('/')) continue;
        auto path = std::string(folder) + '/' + name;
        if (isProgram(path)) return path;
    }
    return {};
}

bool isProgram(const std::string& systemPath) {
    struct stat status {};
    return stat(systemPath.c_str(), &status) == 0 && S_ISREG(status.st_mode) && access(systemPath.c_str(), X_OK) == 0;
}

}  // namespace vell
