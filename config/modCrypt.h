// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "base/errors.h"

// Scrambling of the passwords that the settings file holds: a guard against a casual look, no cipher. Scrambled texts
// are bytes from 100 to 199, some of which the code page leaves undefined: they are never converted.
namespace vell {

inline constexpr std::int32_t unexpectedScramblingError = 20000;
inline constexpr std::int32_t wrongEncryptionString = 20001;

// An empty key means the built-in one, which the caller's variable then holds. Every character's code plus the key's
// offset has to have three digits, which ordinary passwords do with the built-in key.

// Empty when it failed, which is logged.
[[nodiscard]] std::string Encrypt(std::string_view clear, std::string& key, ErrorLog& log);
// Raises error 20001 when the text was scrambled with another key or is damaged; logs it too.
[[nodiscard]] std::string Decrypt(std::string_view scrambled, std::string& key, ErrorLog& log);

}  // namespace vell
