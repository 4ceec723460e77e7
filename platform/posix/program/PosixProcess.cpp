// SPDX-License-Identifier: MIT
#include "platform/posix/program/PosixProcess.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "base/text.h"
#include "platform/posix/files/paths.h"
#include "platform/posix/program/desktopServices.h"

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
    DesktopServices* const desktop = desktopServices().Services;
    return codePageFromUtf8(desktop == nullptr ? homeFolder() : desktop->documentsFolder()).value_or("");
}

bool PosixProcess::IsPreviousInstance() {
    if (lock_.isOpen()) return false;
    const auto path = folder_ + "\\vell.lock";
    const FilePlace place{path, systemPath(path)};
    FileHandle lock(place, O_RDWR | O_CREAT, 0600);
    identity_ = identityOf(lock);
    if (flock(lock.get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK) return true;
        raiseFileError(place);
    }
    lock_ = std::move(lock);
    return false;
}

WindowName* PosixProcess::window() {
    DesktopServices* const desktop = identity_.empty() || window_ ? nullptr : desktopServices().Services;
    if (desktop != nullptr) window_ = desktop->windowName(identity_);
    return window_.get();
}

void PosixProcess::RaisePrevious() {
    if (const WindowName* name = window()) name->ask();
}

void PosixProcess::OnRaise(std::function<void()> raise) {
    if (WindowName* name = window()) name->take(std::move(raise));
}

}  // namespace vell
