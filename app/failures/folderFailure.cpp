// SPDX-License-Identifier: MIT
#include "app/failures/folderFailure.h"

#include "base/text.h"
#include "platform/Files.h"

namespace vell {

Failure folderFailure(const Files& disk, const std::string& downloadFolder) {
    if (Trim(downloadFolder).empty()) return {Cause::NoFolder};
    if (!disk.PathExists(downloadFolder)) return {Cause::FolderMissing, downloadFolder};
    if (disk.FreeBytes(downloadFolder) == 0U) return {Cause::DiskFull};
    return {Cause::FolderUnwritable, downloadFolder};
}

}  // namespace vell
