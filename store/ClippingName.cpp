// SPDX-License-Identifier: MIT
#include "store/ClippingName.h"

#include <algorithm>

#include "base/text.h"

namespace vell {

namespace {

// Bytes that a name may have on the disk, where it is UTF-8. File systems take 255, and a part file's is longer.
constexpr std::size_t longestName = 200;

// Names that mean a device, whatever extension follows (Windows, "Naming Files, Paths, and Namespaces").
bool isDeviceName(std::string_view name) {
    const std::string base = Upper(Trim(name.substr(0, name.find('.'))));
    constexpr std::array<std::string_view, 6> devices{"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    if (std::find(devices.begin(), devices.end(), base) != devices.end()) return true;
    return base.size() == 4 && (base.starts_with("COM") || base.starts_with("LPT")) && base[3] >= '0' && base[3] <= '9';
}

}  // namespace

bool isClippingName(std::string_view name) {
    if (!name.ends_with(".PDF") || utf8FromCodePage(name).size() > longestName) return false;
    const auto forbidden = [](char c) {
        return static_cast<unsigned char>(c) < 32 || c == 127 ||
               std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
    };
    if (std::any_of(name.begin(), name.end(), forbidden)) return false;
    return name.front() != ' ' && name.find("..") == std::string_view::npos && !isDeviceName(name);
}

std::array<std::string, 3> clippingForms(std::string_view pdfName) {
    return {std::string(pdfName), Replace(pdfName, ".PDF", ".TXT"), Replace(pdfName, ".PDF", ".MT")};
}

}  // namespace vell
