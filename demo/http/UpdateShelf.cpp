// SPDX-License-Identifier: MIT
#include "demo/http/UpdateShelf.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "demo/http/FormFields.h"

namespace vell::demo {

namespace fs = std::filesystem;

std::string UpdateShelf::answer(std::string_view form) const {
    const FormFields fields(form, {"vellVersion", "platform"});
    const auto manifest = file(fields.unescaped("platform") + ".txt");
    if (!manifest) return "No update\r\n";
    std::ifstream stream(*manifest, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::optional<fs::path> UpdateShelf::file(std::string_view name) const {
    const auto isPlain = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' || c == '_' ||
               c == '-';
    };
    if (folder_.empty() || name.empty() || name.front() == '.' || !std::ranges::all_of(name, isPlain))
        return std::nullopt;
    const auto path = folder_ / name;
    return fs::is_regular_file(path) ? std::optional(path) : std::nullopt;
}

}  // namespace vell::demo
