// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vell {

// Texts on their way to the system's calls, which speak UTF-16, and back.

[[nodiscard]] std::wstring wideFromUtf8(std::string_view utf8);
[[nodiscard]] std::string utf8FromWide(std::wstring_view wide);
// From and to code page 1253; what has no place in it becomes "?".
[[nodiscard]] std::wstring wideFromCodePage(std::string_view text);
[[nodiscard]] std::string codePageFromWideLossy(std::wstring_view wide);

// The system's own words for one of its errors, as delivered, in code page 1253; of the module that is named where the
// system itself has none. Empty when nobody has any.
[[nodiscard]] std::string systemMessage(std::uint32_t error, const wchar_t* module = nullptr);

// A variable of the environment in UTF-8; empty when it is not there.
[[nodiscard]] std::string environmentVariable(const wchar_t* name);

}  // namespace vell
