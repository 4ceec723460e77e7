// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <dirent.h>

namespace vell {

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};
// A folder that is being listed.
using FolderReader = std::unique_ptr<DIR, CloseFolder>;

}  // namespace vell
