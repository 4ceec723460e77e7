// SPDX-License-Identifier: MIT
#include "platform/windows/program/knownFolder.h"

#include <shlobj.h>

namespace vell {

std::wstring knownFolder(const KNOWNFOLDERID& which) {
    wchar_t* path = nullptr;
    std::wstring found;
    if (SUCCEEDED(SHGetKnownFolderPath(which, KF_FLAG_DEFAULT, nullptr, &path))) found = path;
    CoTaskMemFree(path);
    return found;
}

}  // namespace vell
