// SPDX-License-Identifier: MIT
#include "platform/posix/files/fileErrors.h"

#include <cerrno>
#include <system_error>

#include <sys/stat.h>

#include "base/text.h"
#include "platform/posix/files/paths.h"

namespace vell {

namespace {

bool isFolder(const std::string& systemPath) {
    struct stat status {};
    return stat(systemPath.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::int32_t numberOf(int systemError, const std::string& systemPath) {
    switch (systemError) {
        case ENOENT:
            return isFolder(folderOf(systemPath)) ? error_number::FileNotFound : error_number::PathNotFound;
        case ENOTDIR:
            return error_number::PathNotFound;
        case EACCES:
        case EPERM:
        case EROFS:
        case EBUSY:
        case ETXTBSY:
            return error_number::PermissionDenied;
        case EEXIST:
        case EISDIR:
        case ENOTEMPTY:
            return error_number::PathAccess;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return error_number::DiskFull;
        case ENAMETOOLONG:
        case EINVAL:
        case EILSEQ:
        case ELOOP:
            return error_number::BadFileName;
        case ENOMEM:
            return error_number::OutOfMemory;
        default:
            return error_number::DeviceError;
    }
}

const char* textOf(std::int32_t number) {
    switch (number) {
        case error_number::FileNotFound:
            return "File not found";
        case error_number::PathNotFound:
            return "Path not found";
        case error_number::PermissionDenied:
            return "Permission denied";
        case error_number::PathAccess:
            return "Path/File access error";
        case error_number::DiskFull:
            return "Disk full";
        case error_number::BadFileName:
            return "Bad file name or number";
        case error_number::OutOfMemory:
            return "Out of memory";
        default:
            return "Device I/O error";
    }
}

}  // namespace

RunTimeError fileError(int systemError, const FilePlace& place) {
    const auto number = numberOf(systemError, place.System);
    const auto reason = codePageFromUtf8Lossy(std::generic_category().message(systemError));
    return {number, std::string(textOf(number)) + ": " + place.Text + " (" + reason + ")", "Vell", systemError};
}

void raiseFileError(const FilePlace& place) {
    throw fileError(errno, place);
}

}  // namespace vell
