// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "service/Failure.h"

namespace vell {

class Files;

// Why no day's folder can be made in the download folder.
[[nodiscard]] Failure folderFailure(const Files& disk, const std::string& downloadFolder);

}  // namespace vell
