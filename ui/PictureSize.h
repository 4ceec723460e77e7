// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vell {

struct PictureSize {
    std::uint32_t Width = 0;
    std::uint32_t Height = 0;

    bool operator==(const PictureSize&) const = default;
};

// What the head of a JPEG, PNG or GIF file says of its size. Nothing for other formats and damaged heads.
[[nodiscard]] std::optional<PictureSize> pictureSize(std::string_view bytes);

// True when decoding the file cannot take much memory: a small file may claim to be a huge picture.
[[nodiscard]] bool isDecentPicture(std::string_view bytes);
// Longer files are not even looked at.
inline constexpr std::int64_t longestPicture = std::int64_t{4} << 20;

}  // namespace vell
