// SPDX-License-Identifier: MIT
#include "ui/dayOf.h"

#include "ftp/listing/CFtpFile.h"

namespace vell {

std::optional<Date> dayOf(const CFtpFile& clipping) {
    return dayOfPath(clipping.FilePath);
}

std::optional<Date> dayOfPath(std::string_view path) {
    const std::string_view folder = path.substr(0, path.rfind('\\'));
    return Date::fromFolderName(folder.substr(folder.rfind('\\') + 1));
}

}  // namespace vell
