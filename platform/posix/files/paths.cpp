// SPDX-License-Identifier: MIT
#include "platform/posix/files/paths.h"

#include <algorithm>

#include "base/errors.h"
#include "base/text.h"

namespace vell {

bool isUsablePath(std::string_view path) {
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 32 || c == 127; };
    return !path.empty() && std::ranges::none_of(path, isControl);
}

std::string systemPath(std::string_view path) {
    if (!isUsablePath(path))
        throw RunTimeError(error_number::BadFileName, "Bad file name or number: " + std::string(path));
    std::string system = utf8FromCodePage(path);
    std::ranges::replace(system, '\\', '/');
    while (system.size() > 1 && system.ends_with('/'))
        system.pop_back();
    return system;
}

std::string folderOf(const std::string& systemPath) {
    const auto slash = systemPath.rfind('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : systemPath.substr(0, slash);
}

std::string nameOf(const std::string& systemPath) {
    return systemPath.substr(systemPath.rfind('/') + 1);  // npos + 1 is 0
}

std::string joined(const std::string& folder, const std::string& name) {
    return folder.ends_with('/') ? folder + name : folder + '/' + name;
}

}  // namespace vell
