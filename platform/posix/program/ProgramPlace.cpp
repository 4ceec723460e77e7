// SPDX-License-Identifier: MIT
#include "platform/posix/program/ProgramPlace.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <utility>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/text.h"
#include "platform/posix/files/fileErrors.h"
#include "platform/posix/files/paths.h"

namespace vell {

namespace {

// Where packages are installed; even root keeps no settings there.
constexpr std::array<std::string_view, 2> systemPrefixes{"/usr/", "/opt/"};

// XDG Base Directory Specification: a path that is not absolute is to be ignored.
std::string dataHome() {
    const char* named = std::getenv("XDG_DATA_HOME");
    return named != nullptr && *named == '/' ? named : homeFolder() + "/.local/share";
}

bool isPortable(const std::string& folder) {
    const auto inPrefix = [&](std::string_view prefix) { return (folder + '/').starts_with(prefix); };
    if (std::ranges::any_of(systemPrefixes, inPrefix)) return false;
    std::error_code unknown;
    return std::filesystem::exists(folder + "/vell.ini", unknown) || access(folder.c_str(), W_OK) == 0;
}

void makeFolders(const std::string& folder) {
    if (mkdir(folder.c_str(), 0700) == 0 || errno == EEXIST) return;
    if (errno == ENOENT && folderOf(folder) != folder) {
        makeFolders(folderOf(folder));
        if (mkdir(folder.c_str(), 0700) == 0 || errno == EEXIST) return;
    }
    raiseFileError({codePageFromUtf8Lossy(folder), folder});
}

}  // namespace

std::string homeFolder() {
    if (const char* named = std::getenv("HOME"); named != nullptr && *named == '/') return named;
    const passwd* user = getpwuid(getuid());
    return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "/";
}

ProgramPlace ProgramPlace::ofThisProcess(std::optional<std::string> wanted) {
    std::error_code unknown;
    const auto executable = std::filesystem::read_symlink("/proc/self/exe", unknown);
    if (unknown) throw RunTimeError(error_number::PathNotFound, "The program's own place is unknown");
    return {executable.string(), dataHome(), std::move(wanted)};
}

std::string ProgramPlace::programFolder() const {
    auto folder = Wanted ? std::filesystem::absolute(*Wanted).string() : folderOf(Executable);
    if (!Wanted && !isPortable(folder)) folder = DataHome + "/vell";
    makeFolders(folder);
    return folder;
}

}  // namespace vell
