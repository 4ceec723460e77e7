// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include <sys/types.h>

#include "platform/posix/files/FileHandle.h"

namespace vell {

// The permissions of the file that is to be replaced; nothing when there is none, or a link. Raises when it must not
// be replaced: when it is no file, or one that must not be written.
[[nodiscard]] std::optional<mode_t> permissionsToKeep(const FilePlace& target);
void setPermissions(const FileHandle& file, mode_t permissions, const FilePlace& place);  // raises

}  // namespace vell
