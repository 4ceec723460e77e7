// SPDX-License-Identifier: MIT
#include "ui/PictureSize.h"

#include <cstddef>

namespace vell {

namespace {

constexpr std::uint64_t mostPixels = 16'000'000;

std::uint32_t byteAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}
std::uint32_t bigEndian16(std::string_view bytes, std::size_t at) {
    return byteAt(bytes, at) << 8 | byteAt(bytes, at + 1);
}
std::uint32_t littleEndian16(std::string_view bytes, std::size_t at) {
    return byteAt(bytes, at + 1) << 8 | byteAt(bytes, at);
}

// The frame headers C0 to CF hold the size, but for three markers of that range that mean something else (ITU T.81,
// table B.1).
bool isFrameHeader(std::uint32_t marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

std::optional<PictureSize> jpegSize(std::string_view bytes) {
    constexpr std::size_t markerLength = 2;
    constexpr std::size_t sizeEnd = 9;  // marker, length, precision, height, width
    std::size_t at = markerLength;
    while (at + sizeEnd <= bytes.size()) {
        if (byteAt(bytes, at) != 0xFF) return std::nullopt;
        const std::uint32_t marker = byteAt(bytes, at + 1);
        if (marker == 0xFF) {  // padding
            ++at;
            continue;
        }
        if (isFrameHeader(marker)) return PictureSize{bigEndian16(bytes, at + 7), bigEndian16(bytes, at + 5)};
        at += markerLength + bigEndian16(bytes, at + markerLength);
    }
    return std::nullopt;
}

std::optional<PictureSize> pngSize(std::string_view bytes) {
    constexpr std::size_t widthAt = 16;  // the signature, and the length and name of the first chunk stand before it
    if (bytes.size() < widthAt + 8 || bytes.substr(12, 4) != "IHDR") return std::nullopt;
    const auto number = [&](std::size_t at) { return bigEndian16(bytes, at) << 16 | bigEndian16(bytes, at + 2); };
    return PictureSize{number(widthAt), number(widthAt + 4)};
}

}  // namespace

std::optional<PictureSize> pictureSize(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xD8\xFF")) return jpegSize(bytes);
    if (bytes.starts_with("\x89PNG\r\n\x1A\n")) return pngSize(bytes);
    const bool isGif = bytes.starts_with("GIF87a") || bytes.starts_with("GIF89a");
    if (isGif && bytes.size() >= 10) return PictureSize{littleEndian16(bytes, 6), littleEndian16(bytes, 8)};
    return std::nullopt;
}

bool isDecentPicture(std::string_view bytes) {
    if (static_cast<std::int64_t>(bytes.size()) > longestPicture) return false;
    const auto size = pictureSize(bytes);
    if (!size || size->Width == 0 || size->Height == 0) return false;
    return std::uint64_t{size->Width} * size->Height <= mostPixels;
}

}  // namespace vell
