// SPDX-License-Identifier: MIT
#include "platform/posix/update/PosixInstallation.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include "base/text.h"
#include "platform/SystemPlatform.h"
#include "platform/posix/files/paths.h"
#include "platform/posix/program/startProgram.h"
#include "platform/posix/update/unpackProgram.h"
#include "platform/posix/update/versionOf.h"

namespace vell {

namespace {

using Phase = UpdateState::Phase;

// Where packages are installed.
constexpr std::array<std::string_view, 2> systemPrefixes{"/usr/", "/opt/"};
constexpr std::array<std::string_view, 2> programs{"vell", "vell-console"};
constexpr std::chrono::seconds patience{30};  // with a new program, on a slow disk

FilePlace placeOf(const std::string& path) {
    return {codePageFromUtf8Lossy(path), path};
}

std::string rootOf(const std::string& executable) {
    const std::string folder = folderOf(executable);
    return nameOf(folder) == "bin" ? folderOf(folder) : std::string();
}

bool isWritable(const std::string& folder) {
    return access(folder.c_str(), W_OK | X_OK) == 0;
}

}  // namespace

PosixInstallation::PosixInstallation(Start start)
    : start_(std::move(start)),
      root_(rootOf(start_.Executable)),
      work_(joined(root_, ".vell-update")),
      stateFile_(joined(work_, "STATE")),
      files_(root_, work_) {}

PosixInstallation::~PosixInstallation() {
    if (!trial_) return;
    try {
        trial_->At = Phase::Installed;
        trial_->write(stateFile_);
    } catch (...) {
        return;  // the old program comes back at the next start, which is as good
    }
}

std::string PosixInstallation::PlatformName() const {
#if defined(__x86_64__)
    return "linux-x86_64";
#elif defined(__aarch64__)
    return "linux-aarch64";
#else
    return "linux-other";
#endif
}

bool PosixInstallation::IsOwn() const {
    const auto isUnder = [this](std::string_view prefix) { return (root_ + '/').starts_with(prefix); };
    return !root_.empty() && std::ranges::none_of(systemPrefixes, isUnder) && isWritable(root_) &&
           isWritable(folderOf(start_.Executable));
}

std::string PosixInstallation::UpgradeCommand() const {
    if (!start_.Executable.starts_with("/usr/")) return {};
    if (!findProgram("apt").empty()) return "sudo apt install --only-upgrade vell";
    if (!findProgram("dnf").empty()) return "sudo dnf upgrade vell";
    return {};
}

bool PosixInstallation::takeLock() {
    FileHandle lock(placeOf(joined(work_, "LOCK")), O_RDWR | O_CREAT, 0600);
    if (!lock.tryLock()) return false;
    lock_ = std::move(lock);
    return true;
}

bool PosixInstallation::settle() {
    if (root_.empty() || access(work_.c_str(), F_OK) != 0) return false;
    const bool isQuiet = access(stateFile_.c_str(), F_OK) != 0 && files_.isClear();
    if (isQuiet || !IsOwn() || !takeLock()) return false;
    const auto state = UpdateState::read(stateFile_);
    if (state) return goOn(*state);
    finish();
    return false;
}

bool PosixInstallation::goOn(UpdateState state) {
    switch (state.At) {
        case Phase::Moving:
            replace(state);
            lock_ = {};
            return true;
        case Phase::Installed:
            return begin(state);
        case Phase::Trying:
        case Phase::Undoing:
            undo(state);
            lock_ = {};
            return true;
        case Phase::PutBack:
            putBack_ = state.Version;
            finish();
            return false;
    }
    return false;
}

// Another version than the one that was installed has come here by other ways.
bool PosixInstallation::begin(UpdateState& state) {
    if (state.Version != start_.Version) {
        finish();
        return false;
    }
    state.At = Phase::Trying;
    state.write(stateFile_);
    trial_ = state;
    return false;
}

void PosixInstallation::undo(UpdateState& state) {
    state.At = Phase::Undoing;
    state.write(stateFile_);
    files_.putBack(state.Files);
    state.At = Phase::PutBack;
    state.write(stateFile_);
    files_.clear();
}

void PosixInstallation::finish() {
    std::filesystem::remove(stateFile_);
    for (const auto& entry : std::filesystem::directory_iterator(work_))
        if (entry.path() != work_ + "/LOCK") std::filesystem::remove_all(entry.path());
    lock_ = {};
}

void PosixInstallation::Install(std::string_view archive, std::string_view version) {
    if (!IsOwn()) throw RunTimeError(error_number::PathAccess, "The program must not replace its files here");
    std::filesystem::create_directory(work_);
    if (!takeLock()) throw RunTimeError(error_number::PermissionDenied, "Another program replaces these files now");
    UpdateState state;
    try {
        std::filesystem::remove(stateFile_);
        state = stage(archive, version);
    } catch (...) {
        finish();
        throw;
    }
    replace(state);
    lock_ = {};
}

UpdateState PosixInstallation::stage(std::string_view archive, std::string_view version) {
    UpdateState state{Phase::Moving, std::string(version), {}};
    const FilePlace place{std::string(archive), systemPath(archive)};
    state.Files = unpackProgram(place, "vell-" + state.Version, files_.makeStaging());
    orderFiles(state.Files);
    prove(state);
    files_.keepOld(state.Files);
    return state;
}

// The programs last, so that a program that starts in between finds what it needs.
void PosixInstallation::orderFiles(std::vector<std::string>& files) const {
    std::ranges::sort(files);
    std::stable_partition(files.begin(), files.end(),
                          [](const std::string& file) { return !file.starts_with("bin/vell"); });
}

void PosixInstallation::prove(const UpdateState& state) const {
    const auto has = [&](const std::string& file) { return std::ranges::find(state.Files, file) != state.Files.end(); };
    if (!has("bin/" + nameOf(start_.Executable)))
        throw RunTimeError(error_number::FileNotFound, "The archive does not have this program");
    for (const std::string_view name : programs) {
        const std::string file = "bin/" + std::string(name);
        if (!has(file)) continue;
        const std::string said = versionOf(joined(files_.staging(), file), joined(work_, "ANSWER"), patience);
        if (said != std::string(name) + ' ' + state.Version + '\n')
            throw RunTimeError(error_number::InvalidCall, "The new program does not run here: " + std::string(name));
    }
}

// The note of what is to move makes it the new program's turn: from here on an interruption is made good by the next
// start.
void PosixInstallation::replace(UpdateState& state) {
    try {
        state.write(stateFile_);
        files_.moveIn(state.Files);
        state.At = Phase::Installed;
        state.write(stateFile_);
    } catch (...) {
        undo(state);
        finish();
        throw;
    }
    std::filesystem::remove_all(files_.staging());
    std::filesystem::remove(joined(work_, "ANSWER"));
}

void PosixInstallation::CameUp() {
    if (!std::exchange(trial_, std::nullopt)) return;
    finish();
}

std::optional<std::string> PosixInstallation::TakePutBack() {
    if (putBack_.empty()) return std::nullopt;
    return std::exchange(putBack_, {});
}

void PosixInstallation::Restart() {
    std::vector<char*> words;
    for (std::string& word : start_.Arguments)
        words.push_back(word.data());
    words.push_back(nullptr);
    execv(start_.Executable.c_str(), words.data());
}

std::unique_ptr<Installation> settledInstallation(std::vector<std::string> arguments, std::string_view version) {
    constexpr std::string_view deleted = " (deleted)";  // what the system says of one that was replaced meanwhile
    std::error_code unknown;
    std::string executable = std::filesystem::read_symlink("/proc/self/exe", unknown).string();
    if (executable.ends_with(deleted)) executable.resize(executable.size() - deleted.size());
    auto own = std::make_unique<PosixInstallation>(
        PosixInstallation::Start{executable, std::move(arguments), std::string(version)});
    try {
        if (own->settle()) own->Restart();
    } catch (const std::exception&) {
        return own;  // every program that lies there is a whole one, and the next start tries again
    }
    return own;
}

}  // namespace vell
