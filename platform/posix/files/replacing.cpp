// SPDX-License-Identifier: MIT
#include "platform/posix/files/replacing.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vell {

namespace {
constexpr mode_t permissionBits = 07777;
}

std::optional<mode_t> permissionsToKeep(const FilePlace& target) {
    struct stat status {};
    if (lstat(target.System.c_str(), &status) != 0 || S_ISLNK(status.st_mode)) return std::nullopt;
    // A folder or a device must not give way to a file.
    if (!S_ISREG(status.st_mode)) throw fileError(EEXIST, target);
    // Renaming asks for the folder's permission alone; a file that its owner has made read-only is meant to stay.
    if (faccessat(AT_FDCWD, target.System.c_str(), W_OK, AT_EACCESS) != 0) raiseFileError(target);
    return status.st_mode & permissionBits;
}

void setPermissions(const FileHandle& file, mode_t permissions, const FilePlace& place) {
    if (fchmod(file.get(), permissions) != 0) raiseFileError(place);
}

}  // namespace vell
