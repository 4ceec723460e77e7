// SPDX-License-Identifier: MIT
#include "store/IndexFile.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace vell {

namespace {

constexpr std::string_view separator = "||";
constexpr std::string_view lineEnd = "\r\n";
constexpr std::size_t longestName = 200;

// What a field shows. "|." arises when the field before it ends with a "|".
std::string_view shown(std::string_view field) {
    return field == "." || field == "|." ? std::string_view{} : field;
}

IndexRecord recordOf(std::string_view line) {
    const auto fields = Split(line, separator);
    const auto field = [&](std::size_t i) { return i < fields.size() ? shown(fields[i]) : std::string_view{}; };
    const bool hasType = fields.size() > 4 && shown(fields[4]) == fields[4];
    return {.FileName = fields.empty() ? std::string{} : std::string(fields[0]),
            .NewspaperName = std::string(field(1)),
            .Description = std::string(field(2)),
            .Category = Replace(field(3), "|", ","),
            .ArticleType = hasType ? Replace(fields[4], "|", ",") : " "};
}

// Names that mean a device, whatever extension follows (Windows, "Naming Files, Paths, and Namespaces").
bool isDeviceName(std::string_view name) {
    const std::string base = Upper(Trim(name.substr(0, name.find('.'))));
    constexpr std::array<std::string_view, 6> devices{"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    if (std::find(devices.begin(), devices.end(), base) != devices.end()) return true;
    return base.size() == 4 && (base.starts_with("COM") || base.starts_with("LPT")) && base[3] >= '0' && base[3] <= '9';
}

bool isOwnFile(std::string_view name) {
    constexpr std::array<std::string_view, 4> own{indexFileName, alertFileName, openedFileName, printedFileName};
    return std::any_of(own.begin(), own.end(), [&](std::string_view file) { return equalNoCase(file, name); });
}

}  // namespace

std::string_view indexKey(std::string_view line) {
    return line.substr(0, line.find(separator));
}

std::string_view indexField(std::string_view line, std::size_t number) {
    for (; number > 0; --number) {
        const auto at = line.find(separator);
        if (at == std::string_view::npos) return {};
        line.remove_prefix(at + separator.size());
    }
    return indexKey(line);
}

std::vector<IndexRecord> readIndex(std::string_view text) {
    std::vector<IndexRecord> records;
    // The line end of the last line opens no further line: the reader is then already at the end of the file.
    if (text.ends_with(lineEnd)) text.remove_suffix(lineEnd.size());
    for (auto at = text.find(lineEnd); at != std::string_view::npos; at = text.find(lineEnd)) {
        records.push_back(recordOf(text.substr(0, at)));
        text.remove_prefix(at + lineEnd.size());
    }
    return records;
}

bool isClippingName(std::string_view name) {
    if (name.empty() || name.size() > longestName) return false;
    const auto forbidden = [](char c) {
        return static_cast<unsigned char>(c) < 32 || c == 127 ||
               std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
    };
    if (std::any_of(name.begin(), name.end(), forbidden)) return false;
    if (name.front() == ' ' || name.back() == ' ' || name.back() == '.') return false;
    return name.find("..") == std::string_view::npos && !isDeviceName(name) && !isOwnFile(name);
}

}  // namespace vell
