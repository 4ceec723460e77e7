// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/posix/files/fileErrors.h"

namespace vell {

// Unpacks a tar.gz whose entries all lie in one folder of that name, without this folder, into an existing empty folder
// (a system path), and has the disk take it. Gives the files' paths within it. Raises RunTimeError for whatever is not
// a program of ours, links and ways out of the folder above all; something may then lie in the folder.
[[nodiscard]] std::vector<std::string> unpackProgram(const FilePlace& archive, std::string_view top,
                                                     const std::string& folder);

// A path that leads nowhere but down, in portable characters: "bin/vell".
[[nodiscard]] bool isPlainPath(std::string_view path);

}  // namespace vell
