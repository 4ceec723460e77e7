// SPDX-License-Identifier: MIT
#include "store/PartName.h"

#include <cstdint>

namespace vell {

namespace {

constexpr std::string_view ending = ".part";

// FNV-1a: stays the same from run to run, and a digest need not withstand anybody here.
std::string digest(std::string_view text) {
    constexpr std::uint32_t start = 2166136261, prime = 16777619;
    std::uint32_t hash = start;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * prime;
    constexpr std::string_view digits = "0123456789abcdef";
    std::string written(8, '0');
    for (auto place = written.rbegin(); place != written.rend(); ++place, hash /= 16)
        *place = digits[hash % 16];
    return written;
}

}  // namespace

std::string partName(std::string_view fileName, std::string_view changeField) {
    return std::string(".").append(fileName).append(".").append(digest(changeField)).append(ending);
}

bool isPartOf(std::string_view name, std::string_view fileName) {
    return name.size() == fileName.size() + partNameExtra && name.starts_with('.') && name.ends_with(ending) &&
           name.substr(1).starts_with(fileName) && name[fileName.size() + 1] == '.';
}

}  // namespace vell
