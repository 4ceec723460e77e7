// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// Signatures and digests that others have published, for every implementation of them: RFC 6979, A.2.5, and FIPS 180-2.
namespace vell::test::vectors {

inline std::string fromHex(std::string_view digits) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        bytes += static_cast<char>(std::stoi(std::string(digits.substr(i, 2)), nullptr, 16));
    return bytes;
}

// P-256, SHA-256.
inline const std::string key = fromHex(
    "3059301306072a8648ce3d020106082a8648ce3d03010703420004"
    "60fed4ba255a9d31c961eb74c6356d68c049b8923b61fa6ce669622e60f29fb6"
    "7903fe1008b8bc99a41ae9e95628bc64f2f1b20c2d7e9f5177a3c294d4462299");
inline const std::string ofSample = fromHex(
    "3046022100efd48b2aacb6a8fd1140dd9cd45e81d69d2c877b56aaf991c34d0ea84eaf3716"
    "022100f7cb1c942d657c41d436c7a1b6e29f65f3e900dbb9aff4064dc4ab2f843acda8");
inline const std::string ofTest = fromHex(
    "3045022100f1abb023518351cd71d881567b1ea663ed3efcf6c5132b354f28d3b0b7d38367"
    "0220019f4113742a2b14bd25926b49c649155f267e60d3814b4c0cc84250e46f0083");

inline constexpr std::string_view digestOfAbc = "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad";
// Of a million letters "a".
inline constexpr std::string_view digestOfMillion = "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0";
inline constexpr std::string_view digestOfNothing = "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855";

}  // namespace vell::test::vectors
