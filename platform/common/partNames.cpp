// SPDX-License-Identifier: MIT
#include "platform/common/partNames.h"

#include <random>

#include "base/text.h"

namespace vell {

bool isPartName(std::string_view name) {
    return name.starts_with('.') && name.ends_with(".part");
}

std::string newPartName() {
    static std::random_device random;  // the process number would not do: another machine may share the folder
    return ".vell-" + std::to_string(random()) + '-' + std::to_string(random()) + ".part";
}

std::string lockPartOf(std::string_view path) {
    const std::size_t name = InStrRev(path, "\\") + 1;
    return std::string(Left(path, name - 1)) + '.' + std::string(Mid(path, name)) + ".lock.part";
}

}  // namespace vell
