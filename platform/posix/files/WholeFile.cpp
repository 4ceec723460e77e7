// SPDX-License-Identifier: MIT
#include "platform/posix/files/WholeFile.h"

#include <cerrno>
#include <cstdio>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/files/LeftoverParts.h"
#include "platform/posix/files/paths.h"

namespace vell {

namespace {

constexpr mode_t permissionBits = 07777;

// The permissions of the file that is to be replaced; nothing when there is none. Raises when it must not be written.
std::optional<mode_t> permissionsOf(const FilePlace& target) {
    struct stat status {};
    if (stat(target.System.c_str(), &status) != 0) return std::nullopt;
    // A folder or a device must not give way to a file.
    if (!S_ISREG(status.st_mode)) throw fileError(EEXIST, target);
    // Renaming asks for the folder's permission alone; a file that its owner has made read-only is meant to stay.
    if (faccessat(AT_FDCWD, target.System.c_str(), W_OK, AT_EACCESS) != 0) raiseFileError(target);
    return status.st_mode & permissionBits;
}

}  // namespace

WholeFile::WholeFile(const FilePlace& target)
    : target_(target), part_{target.Text, joined(folderOf(target.System), newPartName())} {
    const auto permissions = permissionsOf(target);
    file_ = FileHandle(part_, O_WRONLY | O_CREAT | O_EXCL, permissions ? 0600 : 0666);
    if (permissions && fchmod(file_.get(), *permissions) != 0) {
        const auto error = fileError(errno, target);
        unlink(part_.System.c_str());
        throw error;
    }
}

WholeFile::~WholeFile() {
    if (!inPlace_) unlink(part_.System.c_str());
}

void WholeFile::write(std::string_view bytes, Durability durability) {
    file_.writeAll(bytes, target_);
    if (durability == Durability::Flushed) file_.flushToDisk(target_);
    file_.close(target_);
}

void WholeFile::takePlace(Durability durability) {
    if (std::rename(part_.System.c_str(), target_.System.c_str()) != 0) raiseFileError(target_);
    inPlace_ = true;
    if (durability == Durability::Rename) return;
    // The name, too, is on the disk only when the folder is.
    FileHandle folder({target_.Text, folderOf(target_.System)}, O_RDONLY | O_DIRECTORY);
    folder.flushToDisk(target_);
}

}  // namespace vell
