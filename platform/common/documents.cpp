// SPDX-License-Identifier: MIT
#include "platform/common/documents.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace vell {

namespace {

constexpr std::array<std::string_view, 3> schemes{"http", "https", "mailto"};

constexpr std::array<std::string_view, 21> runnableEndings{
    ".appimage", ".bat", ".cmd", ".com", ".desktop", ".exe", ".hta", ".jar", ".js",  ".lnk", ".msi",
    ".pif",      ".pl",  ".ps1", ".py",  ".reg",     ".run", ".scr", ".sh",  ".vbs", ".wsf"};

std::string lowered(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return result;
}

}  // namespace

bool isAddress(std::string_view text) {
    const auto colon = text.find(':');
    if (colon == std::string_view::npos) return false;
    return std::ranges::find(schemes, lowered(text.substr(0, colon))) != schemes.end();
}

bool hasRunnableEnding(std::string_view name) {
    const auto dot = name.rfind('.');
    return dot != std::string_view::npos &&
           std::ranges::find(runnableEndings, lowered(name.substr(dot))) != runnableEndings.end();
}

std::vector<std::string> splitParameters(std::string_view parameters) {
    std::vector<std::string> parts;
    bool isQuoted = false, isInside = false;
    for (const char c : parameters) {
        if ((c == ' ' || c == '\t') && !isQuoted) {
            isInside = false;
            continue;
        }
        if (!isInside) parts.emplace_back();
        isInside = true;
        if (c == '"')
            isQuoted = !isQuoted;
        else
            parts.back() += c;
    }
    return parts;
}

}  // namespace vell
