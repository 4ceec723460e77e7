// SPDX-License-Identifier: MIT
#include "platform/posix/program/PosixShell.h"

#include <cerrno>
#include <filesystem>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

#include "base/text.h"
#include "platform/common/documents.h"
#include "platform/posix/files/paths.h"
#include "platform/posix/printing/printDocument.h"
#include "platform/posix/program/desktopApplications.h"
#include "platform/posix/program/startProgram.h"

namespace vell {

namespace {

bool exists(const std::string& path) {
    return access(path.c_str(), F_OK) == 0;
}

int codeOf(int systemError) {
    switch (systemError) {
        case 0:
            return shell_code::Started;
        case ENOENT:
            return shell_code::FileNotFound;
        case ENOTDIR:
            return shell_code::PathNotFound;
        case ENOEXEC:
        case ELIBBAD:
            return shell_code::NoValidProgram;
        case ETXTBSY:
            return shell_code::SharingViolation;
        case ENOMEM:
        case EAGAIN:
        case E2BIG:
            return shell_code::OutOfMemory;
        default:
            return shell_code::AccessDenied;
    }
}

Opening openPath(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        if (errno == ENOENT && !exists(folderOf(path))) return {shell_code::PathNotFound, {}};
        return {codeOf(errno), {}};
    }
    const bool canBeOpened = S_ISREG(status.st_mode) || S_ISDIR(status.st_mode);
    if (!canBeOpened || access(path.c_str(), R_OK) != 0) return {shell_code::AccessDenied, {}};
    return openWithApplication(path);
}

}  // namespace

PosixShell::PosixShell(Places places, std::chrono::milliseconds patience)
    : places_(std::move(places)), patience_(patience) {}

PosixShell::Places PosixShell::Places::ofThisProgram() {
    std::error_code unknown;
    const auto executable = std::filesystem::read_symlink("/proc/self/exe", unknown);
    if (unknown) return {};
    const auto folder = executable.parent_path();
    const auto prefix = folder.parent_path();
    return {{folder.string(), (prefix / "share" / "vell").string()}, (prefix / "libexec/vell/vell-print").string()};
}

int PosixShell::Open(std::string_view file, std::string_view parameters) {
    lastReason_.clear();
    return open(file, parameters);
}

int PosixShell::open(std::string_view file, std::string_view parameters) {
    file = Trim(file);
    if (!isUsablePath(file)) return shell_code::FileNotFound;
    if (const auto address = utf8FromCodePage(file); isAddress(address)) return told(openAddress(address));
    if (file.find_first_of("\\/") == std::string_view::npos) return openByName(file, parameters);
    return told(openPath(names_.realPath(systemPath(file))));
}

int PosixShell::told(Opening opening) {
    lastReason_ = std::move(opening.Reason);
    return opening.Code;
}

int PosixShell::openByName(std::string_view name, std::string_view parameters) {
    if (equalNoCase(name, pdfReader)) {
        auto outcome = printDocument(places_.PrintHelper, arguments(parameters), patience_);
        lastReason_ = std::move(outcome.Reason);
        return outcome.Code;
    }
    const auto systemName = systemPath(name);
    for (const auto& folder : places_.OwnFolders) {
        const auto path = names_.realPath(joined(folder, systemName));
        if (isProgram(path)) return codeOf(startProgram(path, arguments(parameters)));
        if (exists(path)) return told(openPath(path));
    }
    const auto program = findProgram(systemName);
    return program.empty() ? shell_code::FileNotFound : codeOf(startProgram(program, arguments(parameters)));
}

// In the system's form: a path of the program's becomes that of the file that is meant.
std::vector<std::string> PosixShell::arguments(std::string_view parameters) {
    auto parts = splitParameters(parameters);
    for (auto& part : parts) {
        const bool isPath = part.find('\\') != std::string::npos && isUsablePath(part);
        const auto path = isPath ? names_.realPath(systemPath(part)) : std::string();
        part = isPath && exists(path) ? path : utf8FromCodePage(part);
    }
    return parts;
}

}  // namespace vell
