// SPDX-License-Identifier: MIT
#include "log/logLine.h"

#include <algorithm>
#include <cstddef>

namespace vell {

namespace {

constexpr std::size_t longest = 65'536;

bool isLineEnd(char c) {
    return c == '\r' || c == '\n';
}

char harmless(char c) {
    const bool isControl = static_cast<unsigned char>(c) < ' ' || c == '\x7F';
    return isControl && c != '\t' && !isLineEnd(c) ? '.' : c;
}

// As WriteLog begins its lines, whatever the numbers.
bool looksStamped(std::string_view line) {
    constexpr std::string_view stamp = "00/00/0000 00:00:00,";
    const auto fits = [](char wanted, char c) { return wanted == '0' ? c >= '0' && c <= '9' : c == wanted; };
    return line.size() >= stamp.size() && std::equal(stamp.begin(), stamp.end(), line.begin(), fits);
}

}  // namespace

std::string logLine(std::string_view text) {
    std::string line;
    for (std::size_t at = 0; at < std::min(text.size(), longest); ++at) {
        if (at > 0 && isLineEnd(text[at - 1]) && looksStamped(text.substr(at))) line += "\t\t";
        line += harmless(text[at]);
    }
    if (text.size() > longest) line += " ... (" + std::to_string(text.size() - longest) + " bytes more)";
    return line;
}

}  // namespace vell
