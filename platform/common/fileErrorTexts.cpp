// SPDX-License-Identifier: MIT
#include "platform/common/fileErrorTexts.h"

#include "base/errors.h"

namespace vell {

const char* fileErrorText(std::int32_t number) {
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

}  // namespace vell
