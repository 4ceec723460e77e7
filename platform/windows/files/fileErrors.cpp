// SPDX-License-Identifier: MIT
#include "platform/windows/files/fileErrors.h"

#include "platform/common/fileErrorTexts.h"
#include "platform/windows/files/paths.h"
#include "platform/windows/systemText.h"

namespace vell {

namespace {

constexpr std::uint32_t quotaExceeded = 1295;  // ERROR_DISK_QUOTA_EXCEEDED, which the headers do not know

bool isFolder(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::int32_t numberOf(std::uint32_t systemError, const std::wstring& path) {
    switch (systemError) {
        case ERROR_FILE_NOT_FOUND:
            return isFolder(folderOf(path)) ? error_number::FileNotFound : error_number::PathNotFound;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_NOT_READY:
            return error_number::PathNotFound;
        case ERROR_ACCESS_DENIED:
            return isFolder(path) ? error_number::PathAccess : error_number::PermissionDenied;
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_WRITE_PROTECT:
        case ERROR_USER_MAPPED_FILE:
        case ERROR_NETWORK_ACCESS_DENIED:
            return error_number::PermissionDenied;
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
        case ERROR_DIR_NOT_EMPTY:
        case ERROR_DIRECTORY:
            return error_number::PathAccess;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
        case quotaExceeded:
        case ERROR_FILE_TOO_LARGE:
            return error_number::DiskFull;
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_FILENAME_EXCED_RANGE:
        case ERROR_INVALID_PARAMETER:
            return error_number::BadFileName;
        case ERROR_NOT_ENOUGH_MEMORY:
        case ERROR_OUTOFMEMORY:
            return error_number::OutOfMemory;
        default:
            return error_number::DeviceError;
    }
}

std::string withoutLineEnd(std::string text) {
    while (text.ends_with('\n') || text.ends_with('\r') || text.ends_with(' '))
        text.pop_back();
    return text;
}

}  // namespace

RunTimeError fileError(std::uint32_t systemError, const FilePlace& place) {
    const auto number = numberOf(systemError, place.System);
    const auto reason = withoutLineEnd(systemMessage(systemError));
    return {number, std::string(fileErrorText(number)) + ": " + place.Text + " (" + reason + ")", "Vell",
            static_cast<std::int32_t>(systemError)};
}

void raiseFileError(const FilePlace& place) {
    throw fileError(GetLastError(), place);
}

bool isAbsence(std::uint32_t systemError) {
    switch (systemError) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
        case ERROR_INVALID_NAME:
        case ERROR_DIRECTORY:
            return true;
        default:
            return false;
    }
}

}  // namespace vell
