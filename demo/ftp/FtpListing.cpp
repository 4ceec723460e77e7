// SPDX-License-Identifier: MIT
#include "demo/ftp/FtpListing.h"

#include <array>

#include "base/text.h"

namespace vell::demo {

namespace {

// In the C locale, whose month names clients know.
std::string timeText(std::time_t time, const char* form) {
    std::tm parts{};
    localtime_r(&time, &parts);
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), form, &parts)};
}

std::string rightAligned(const std::string& text, std::size_t width) {
    return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}

std::string unixLine(const FtpEntry& entry, std::time_t now) {
    constexpr std::time_t halfAYear = 182L * 24 * 60 * 60;
    const bool isRecent = entry.Time <= now && now - entry.Time < halfAYear;
    return (entry.IsDirectory ? "drwxr-xr-x   2" : "-rw-r--r--   1") + std::string(" ftp      ftp      ") +
           rightAligned(std::to_string(entry.Size), 12) +
           timeText(entry.Time, isRecent ? " %b %e %H:%M " : " %b %e  %Y ") + entry.Name;
}

std::string dosLine(const FtpEntry& entry) {
    const std::string size = rightAligned(std::to_string(entry.Size), 20);
    return timeText(entry.Time, "%m-%d-%y  %I:%M%p") + (entry.IsDirectory ? "       <DIR>         " : size) + " " +
           entry.Name;
}

}  // namespace

std::string listing(const std::vector<FtpEntry>& entries, ListForm form, std::time_t now) {
    std::string text;
    for (const auto& entry : entries)
        text += (form == ListForm::Dos ? dosLine(entry) : unixLine(entry, now)) + "\r\n";
    return text;
}

std::string nameListing(const std::vector<FtpEntry>& entries) {
    std::string text;
    for (const auto& entry : entries)
        text += entry.Name + "\r\n";
    return text;
}

bool matchesPattern(std::string_view pattern, std::string_view name) {
    if (pattern.empty()) return name.empty();
    if (pattern.front() == '*') {
        const auto rest = pattern.substr(1);
        return matchesPattern(rest, name) || (!name.empty() && matchesPattern(pattern, name.substr(1)));
    }
    const bool fits =
        !name.empty() && (pattern.front() == '?' || UpperChar(pattern.front()) == UpperChar(name.front()));
    return fits && matchesPattern(pattern.substr(1), name.substr(1));
}

}  // namespace vell::demo
