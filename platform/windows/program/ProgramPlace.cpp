// SPDX-License-Identifier: MIT
#include "platform/windows/program/ProgramPlace.h"

#include <shlobj.h>

#include "platform/Arguments.h"
#include "platform/common/partNames.h"
#include "platform/windows/files/FileHandle.h"
#include "platform/windows/files/paths.h"
#include "platform/windows/program/knownFolder.h"
#include "platform/windows/systemText.h"

namespace vell {

namespace {

bool exists(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// The folder's rights alone do not tell; a file that goes at once does.
bool canBeWritten(const std::wstring& folder) {
    return FileHandle::tried(joined(folder, wideFromUtf8(newPartName())),
                             {GENERIC_WRITE | DELETE, 0, CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE})
        .isOpen();
}

bool isPortable(const std::wstring& folder) {
    return exists(joined(folder, L"vell.ini")) || canBeWritten(folder);
}

void makeFolders(const std::wstring& folder) {
    if (CreateDirectoryW(folder.c_str(), nullptr) || GetLastError() == ERROR_ALREADY_EXISTS) return;
    if (GetLastError() == ERROR_PATH_NOT_FOUND && folderOf(folder) != folder) {
        makeFolders(folderOf(folder));
        if (CreateDirectoryW(folder.c_str(), nullptr) || GetLastError() == ERROR_ALREADY_EXISTS) return;
    }
    raiseFileError({codePageFromWideLossy(folder), folder});
}

}  // namespace

ProgramPlace ProgramPlace::ofThisProcess(const std::optional<std::string>& wanted) {
    return {programPath().wstring(), knownFolder(FOLDERID_LocalAppData),
            wanted ? std::optional(systemPathFromUtf8(*wanted)) : std::nullopt};
}

std::wstring ProgramPlace::programFolder() const {
    std::wstring folder = Wanted ? *Wanted : folderOf(Executable);
    if (!Wanted && !isPortable(folder)) folder = joined(DataHome, L"Vell");
    makeFolders(folder);
    return folder;
}

}  // namespace vell
