// SPDX-License-Identifier: MIT
#pragma once

#include "platform/windows/files/FileHandle.h"

namespace vell {

// Looks at the file that is to be replaced, if there is one. Raises when it must not be: when it is no file, or one
// that must not be written. What is to take its place gets its rights.
void prepareToReplace(const FilePlace& target, const FilePlace& by);

// Makes an empty file that its owner alone may read, besides those who may read everything. Raises.
void makePrivate(const FilePlace& place);

}  // namespace vell
