// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "base/Date.h"

namespace vell {

// One file or folder: an entry of a server's listing, or a clipping on disk joined to what the day's index says of it.
// Texts in code page 1253.
struct CFtpFile {
    std::string FileName;  // without path
    std::string FilePath;  // a clipping: its folder, with backslash; a listed link: its target
    bool IsDirectory = false;
    std::int32_t FileSize = 0;  // bytes
    LocalTime LastWriteTime;    // the zero date when not known

    // Of listings in the Unix form only.
    std::string Permissions;
    std::string owner;
    std::string Group;

    // Of clippings only.
    std::string NewspaperName;
    std::string Description;  // the article's title
    std::string Category;
    std::string ArticleType;
};

}  // namespace vell
