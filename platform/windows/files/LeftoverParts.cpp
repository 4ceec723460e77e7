// SPDX-License-Identifier: MIT
#include "platform/windows/files/LeftoverParts.h"

#include <vector>

#include "platform/common/partNames.h"
#include "platform/windows/files/FileHandle.h"
#include "platform/windows/files/FolderReader.h"
#include "platform/windows/files/paths.h"
#include "platform/windows/systemText.h"

namespace vell {

namespace {

std::int64_t systemNow() {
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    return static_cast<std::int64_t>(std::uint64_t{now.dwHighDateTime} << 32 | now.dwLowDateTime);
}

}  // namespace

void removeLeftoverParts(const std::wstring& folder, std::chrono::hours age) {
    using FileTime = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
    const std::int64_t oldest = systemNow() - FileTime(age).count();
    FolderReader reader(folder);
    for (FolderReader::Found found; reader.next(found);) {
        if (found.IsFolder || found.ModifiedAt > oldest || !isPartName(utf8FromWide(found.Name))) continue;
        // Nobody else may have it open. A part of another user's stays.
        const FilePlace part{utf8FromWide(found.Name), joined(folder, found.Name)};
        FileHandle file = FileHandle::tried(
            part.System, {GENERIC_READ | GENERIC_WRITE | DELETE, 0, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT});
        if (file.isOpen()) file.markDeleted(part);
    }
}

}  // namespace vell
