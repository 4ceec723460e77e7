// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Text inside the program is bytes in code page 1253, exactly as the service sends them and the files hold them.
// Positions are one-based, as the procedures that use them count; 0 says "not found".
namespace vell {

// Takes off blanks (the character 32 only) at both ends.
[[nodiscard]] std::string_view Trim(std::string_view text);

// Letters by the rules of code page 1253. Lower undoes Upper, but for the final sigma.
[[nodiscard]] char UpperChar(char c);
[[nodiscard]] std::string Upper(std::string_view text);
[[nodiscard]] std::string Lower(std::string_view text);
// Greek capitals with an accent become the bare letters; for text that is in capitals already.
[[nodiscard]] std::string withoutAccents(std::string_view capitals);
[[nodiscard]] bool equalNoCase(std::string_view a, std::string_view b);
// Orders by upper-cased bytes; negative, 0 or positive.
[[nodiscard]] int compareNoCase(std::string_view a, std::string_view b);

// Up to `length` characters from the one-based `start` on; what lies past the end is left out.
[[nodiscard]] std::string_view Mid(std::string_view text, std::size_t start, std::size_t length);
[[nodiscard]] std::string_view Mid(std::string_view text, std::size_t start);
[[nodiscard]] std::string_view Left(std::string_view text, std::size_t length);
[[nodiscard]] std::string_view Right(std::string_view text, std::size_t length);
// One-based position of the first (last) `part`, 0 when it is not there.
[[nodiscard]] std::size_t InStr(std::string_view text, std::string_view part, std::size_t start = 1);
[[nodiscard]] std::size_t InStrRev(std::string_view text, std::string_view part);

[[nodiscard]] std::string Replace(std::string_view text, std::string_view what, std::string_view with);
// The pieces point into `text`. An empty text has no pieces.
[[nodiscard]] std::vector<std::string_view> Split(std::string_view text, std::string_view separator);

// The number that a text begins with, leading blanks skipped; 0 when it begins with none. The decimal point is ".". A
// number too large for the type becomes the largest.
[[nodiscard]] double Val(std::string_view text);
// Rounds half to even. Raises error 6 "Overflow" outside the type's range.
[[nodiscard]] std::int16_t CInt16(double value);
[[nodiscard]] std::int32_t CInt32(double value);
// The same from a text that must be a number as a whole, blanks around it apart. Raises error 13 "Type mismatch".
[[nodiscard]] std::int16_t CInt16(std::string_view text);
[[nodiscard]] std::int32_t CInt32(std::string_view text);
// True when the text is a number as a whole, blanks around it apart.
[[nodiscard]] bool isNumeric(std::string_view text);

// A number as the texts show it: 3, 3.33333333333333 (15 significant digits, no trailing zeros).
[[nodiscard]] std::string NumberText(double value);
// "True" or "False".
[[nodiscard]] std::string_view BooleanText(bool value);

// The way out to a screen, a terminal or a file name, and back. All 256 byte values survive both ways: the bytes that
// the code page leaves undefined go to the code points that the system's own converter gives them.
[[nodiscard]] std::string utf8FromCodePage(std::string_view text);
// Nothing when a character has no place in the code page or the bytes are no UTF-8.
[[nodiscard]] std::optional<std::string> codePageFromUtf8(std::string_view utf8);
// The same with "?" for every such character.
[[nodiscard]] std::string codePageFromUtf8Lossy(std::string_view utf8);

}  // namespace vell
