// SPDX-License-Identifier: MIT
#include "platform/posix/files/fileErrors.h"

#include <cerrno>
#include <system_error>

#include <sys/stat.h>

#include "base/text.h"
#include "platform/common/fileErrorTexts.h"
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

}  // namespace

RunTimeError fileError(int systemError, const FilePlace& place) {
    const auto number = numberOf(systemError, place.System);
    const auto reason = codePageFromUtf8Lossy(std::generic_category().message(systemError));
    return {number, std::string(fileErrorText(number)) + ": " + place.Text + " (" + reason + ")", "Vell", systemError};
}

void raiseFileError(const FilePlace& place) {
    throw fileError(errno, place);
}

}  // namespace vell
