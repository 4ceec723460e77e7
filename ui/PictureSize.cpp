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

// Behind the pieces at `at`, each with its length in its first byte; the last one is empty.
std::size_t behindPieces(std::string_view bytes, std::size_t at) {
    while (at < bytes.size() && byteAt(bytes, at) != 0)
        at += 1 + byteAt(bytes, at);
    return at + 1;
}

std::size_t colourTableLength(std::uint32_t flags) {
    return (flags & 0x80) == 0 ? 0 : std::size_t{3} << ((flags & 7) + 1);
}

// Pixels of all frames together, up to where the file ends or breaks off: the decoder takes them all in. A block of an
// unknown kind is more than any picture has.
std::uint64_t gifPixels(std::string_view bytes) {
    constexpr std::size_t flagsAt = 10, headLength = 13, frameHeadLength = 10;
    std::uint64_t pixels = 0;
    std::size_t at = headLength + (bytes.size() > flagsAt ? colourTableLength(byteAt(bytes, flagsAt)) : 0);
    while (at < bytes.size() && bytes[at] != ';') {
        if (bytes[at] == '!') {  // an extension: its kind, then pieces
            at = behindPieces(bytes, at + 2);
            continue;
        }
        if (bytes[at] != ',') return mostPixels + 1;
        if (at + frameHeadLength > bytes.size()) break;
        pixels += std::uint64_t{littleEndian16(bytes, at + 5)} * littleEndian16(bytes, at + 7);
        constexpr std::size_t codeSizeLength = 1;
        at += frameHeadLength + colourTableLength(byteAt(bytes, at + frameHeadLength - 1));
        at = behindPieces(bytes, at + codeSizeLength);
    }
    return pixels;
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
    if (bytes.starts_with("GIF8") && gifPixels(bytes) > mostPixels) return false;
    return std::uint64_t{size->Width} * size->Height <= mostPixels;
}

}  // namespace vell
