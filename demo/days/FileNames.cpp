// SPDX-License-Identifier: MIT
#include "demo/days/FileNames.h"

#include <algorithm>

#include "base/text.h"

namespace vell::demo {

namespace fs = std::filesystem;

bool isPlainName(std::string_view name) {
    constexpr std::string_view refused = "/\\:*?\"<>|";
    const auto isRefused = [&](char c) { return c < 33 || c > 126 || refused.find(c) != std::string_view::npos; };
    return !name.empty() && name.size() <= 100 && name.front() != '.' && name.back() != '.' &&
           std::none_of(name.begin(), name.end(), isRefused);
}

std::optional<fs::path> fileNamed(const fs::path& folder, std::string_view name) {
    if (!isPlainName(name)) return std::nullopt;
    std::error_code problem;
    if (fs::is_regular_file(folder / name, problem)) return folder / name;
    for (const auto& entry : fs::directory_iterator(folder, problem))
        if (equalNoCase(entry.path().filename().string(), name) && entry.is_regular_file(problem)) return entry.path();
    return std::nullopt;
}

}  // namespace vell::demo
