// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace vell::test {

// A signature by the key that the demo signs with, or by one that nobody knows, in base64.
enum class SignedBy { Demo, Stranger };
[[nodiscard]] std::string signatureOf(std::string_view bytes, SignedBy who = SignedBy::Demo);
[[nodiscard]] std::string sha256Of(std::string_view bytes);

// The manifest of an archive as 2.1.38 for linux-x86_64, with other lines where they are named, signed at its end.
[[nodiscard]] std::string signedManifest(std::string_view archive, const std::map<std::string, std::string>& other = {},
                                         SignedBy who = SignedBy::Demo);

}  // namespace vell::test
