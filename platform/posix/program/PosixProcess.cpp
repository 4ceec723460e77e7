// SPDX-License-Identifier: MIT
#include "platform/posix/program/PosixProcess.h"

#include <cerrno>
#include <filesystem>
#include <utility>

#include <fcntl.h>
#include <glib.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "base/text.h"
#include "platform/posix/files/paths.h"

namespace vell {

namespace {

std::string expressed(const std::string& folder) {
    if (auto text = codePageFromUtf8(folder)) return *text;
    throw RunTimeError(
        error_number::BadFileName,
        "Characters of the program folder's name are not in code page 1253: " + codePageFromUtf8Lossy(folder));
}

// The same whatever path leads to the file.
std::string identityOf(const FileHandle& file) {
    struct stat status {};
    if (fstat(file.get(), &status) != 0) return {};
    return std::to_string(status.st_dev) + "_" + std::to_string(status.st_ino);
}

}  // namespace

PosixProcess::PosixProcess(const ProgramPlace& place) : folder_(expressed(place.programFolder())) {}

std::string PosixProcess::DocumentsFolder() const {
    const char* const documents = g_get_user_special_dir(G_USER_DIRECTORY_DOCUMENTS);
    const bool isThere = documents && std::filesystem::is_directory(documents);
    return codePageFromUtf8(isThere ? documents : g_get_home_dir()).value_or("");
}

bool PosixProcess::IsPreviousInstance() {
    if (lock_.isOpen()) return false;
    const auto path = folder_ + "\\vell.lock";
    const FilePlace place{path, systemPath(path)};
    FileHandle lock(place, O_RDWR | O_CREAT, 0600);
    window_ = std::make_unique<WindowName>(identityOf(lock));
    if (flock(lock.get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK) return true;
        raiseFileError(place);
    }
    lock_ = std::move(lock);
    return false;
}

void PosixProcess::RaisePrevious() {
    if (window_) window_->ask();
}

void PosixProcess::OnRaise(std::function<void()> raise) {
    if (window_) window_->take(std::move(raise));
}

}  // namespace vell
