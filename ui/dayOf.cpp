// SPDX-License-Identifier: MIT
#include "ui/dayOf.h"

#include <string_view>

#include "ftp/listing/CFtpFile.h"

namespace vell {

std::optional<Date> dayOf(const CFtpFile& clipping) {
    std::string_view folder = clipping.FilePath;
    if (folder.ends_with('\\')) folder.remove_suffix(1);
    return Date::fromFolderName(folder.substr(folder.rfind('\\') + 1));
}

}  // namespace vell
