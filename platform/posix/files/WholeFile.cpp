// SPDX-License-Identifier: MIT
#include "platform/posix/files/WholeFile.h"

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

#include "platform/common/partNames.h"
#include "platform/posix/files/paths.h"
#include "platform/posix/files/replacing.h"

namespace vell {

WholeFile::WholeFile(const FilePlace& target)
    : target_(target), part_{target.Text, joined(folderOf(target.System), newPartName())} {
    const auto permissions = permissionsToKeep(target);
    file_ = FileHandle(part_, O_WRONLY | O_CREAT | O_EXCL, permissions ? 0600 : 0666);
    try {
        // Locked, it is not taken for left over. Nobody else can know its name yet.
        (void)file_.tryLock();
        if (permissions) setPermissions(file_, *permissions, target);
    } catch (const RunTimeError&) {
        unlink(part_.System.c_str());
        throw;
    }
}

WholeFile::~WholeFile() {
    if (!inPlace_) unlink(part_.System.c_str());
}

void WholeFile::write(std::string_view bytes, Durability durability) {
    file_.writeAll(bytes, target_);
    if (durability == Durability::Flushed)
        file_.flushToDisk(target_);
    else
        file_.reportLateErrors(target_);
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
