// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/errors.h"

namespace vell {

namespace {

constexpr std::string_view digits = "0123456789";

// The accented Greek letters of code page 1253 that have a capital. The letters with dialytika and tonos (192, 224)
// have none.
struct AccentedLetter {
    unsigned char Capital;
    unsigned char Small;
    unsigned char Bare;  // the capital under the accent
};
constexpr std::array<AccentedLetter, 9> accentedLetters{{
    {162, 220, 193},  // alpha with tonos
    {184, 221, 197},  // epsilon with tonos
    {185, 222, 199},  // eta with tonos
    {186, 223, 201},  // iota with tonos
    {188, 252, 207},  // omicron with tonos
    {190, 253, 213},  // upsilon with tonos
    {191, 254, 217},  // omega with tonos
    {218, 250, 201},  // iota with dialytika
    {219, 251, 213},  // upsilon with dialytika
}};

constexpr unsigned char upperOf(unsigned char c) {
    constexpr unsigned char sigma = 211, finalSigma = 242;
    if (c == finalSigma) return sigma;
    for (const auto& letter : accentedLetters)
        if (letter.Small == c) return letter.Capital;
    const bool isSmall = (c >= 'a' && c <= 'z') || (c >= 225 && c <= 249);
    return isSmall ? static_cast<unsigned char>(c - 32) : c;
}

constexpr unsigned char lowerOf(unsigned char c) {
    constexpr unsigned char undefined = 210;
    for (const auto& letter : accentedLetters)
        if (letter.Capital == c) return letter.Small;
    const bool isCapital = (c >= 'A' && c <= 'Z') || (c >= 193 && c <= 217 && c != undefined);
    return isCapital ? static_cast<unsigned char>(c + 32) : c;
}

constexpr unsigned char bareOf(unsigned char c) {
    for (const auto& letter : accentedLetters)
        if (letter.Capital == c) return letter.Bare;
    return c;
}

template <class Map>
constexpr std::array<char, 256> tableOf(Map map) {
    std::array<char, 256> table{};
    for (unsigned i = 0; i < table.size(); ++i)
        table[i] = static_cast<char>(map(static_cast<unsigned char>(i)));
    return table;
}
constexpr auto upperTable = tableOf(upperOf);
constexpr auto lowerTable = tableOf(lowerOf);
constexpr auto bareTable = tableOf(bareOf);

char mapped(const std::array<char, 256>& table, char c) {
    return table[static_cast<unsigned char>(c)];
}

std::string mappedText(const std::array<char, 256>& table, std::string_view text) {
    std::string result(text);
    for (char& c : result)
        c = mapped(table, c);
    return result;
}

// Code page 1253 from 128 on, as published by the Unicode consortium (CP1253.TXT); its undefined bytes are given the
// code points of the best-fit table: C1 controls, and three of the private use area.
constexpr std::array<char16_t, 128> highHalf{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x0088, 0x2030, 0x008A, 0x2039, 0x008C,
    0x008D, 0x008E, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x0098, 0x2122,
    0x009A, 0x203A, 0x009C, 0x009D, 0x009E, 0x009F, 0x00A0, 0x0385, 0x0386, 0x00A3, 0x00A4, 0x00A5, 0x00A6,
    0x00A7, 0x00A8, 0x00A9, 0xF8F9, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x2015, 0x00B0, 0x00B1, 0x00B2, 0x00B3,
    0x0384, 0x00B5, 0x00B6, 0x00B7, 0x0388, 0x0389, 0x038A, 0x00BB, 0x038C, 0x00BD, 0x038E, 0x038F, 0x0390,
    0x0391, 0x0392, 0x0393, 0x0394, 0x0395, 0x0396, 0x0397, 0x0398, 0x0399, 0x039A, 0x039B, 0x039C, 0x039D,
    0x039E, 0x039F, 0x03A0, 0x03A1, 0xF8FA, 0x03A3, 0x03A4, 0x03A5, 0x03A6, 0x03A7, 0x03A8, 0x03A9, 0x03AA,
    0x03AB, 0x03AC, 0x03AD, 0x03AE, 0x03AF, 0x03B0, 0x03B1, 0x03B2, 0x03B3, 0x03B4, 0x03B5, 0x03B6, 0x03B7,
    0x03B8, 0x03B9, 0x03BA, 0x03BB, 0x03BC, 0x03BD, 0x03BE, 0x03BF, 0x03C0, 0x03C1, 0x03C2, 0x03C3, 0x03C4,
    0x03C5, 0x03C6, 0x03C7, 0x03C8, 0x03C9, 0x03CA, 0x03CB, 0x03CC, 0x03CD, 0x03CE, 0xF8FB};

void appendUtf8(std::string& out, char16_t point) {
    const auto byte = [](unsigned value) { return static_cast<char>(static_cast<unsigned char>(value)); };
    const unsigned p = point;
    if (p < 0x80) {
        out += byte(p);
    } else if (p < 0x800) {
        out += byte(0xC0 | (p >> 6));
        out += byte(0x80 | (p & 0x3F));
    } else {
        out += byte(0xE0 | (p >> 12));
        out += byte(0x80 | ((p >> 6) & 0x3F));
        out += byte(0x80 | (p & 0x3F));
    }
}

constexpr char32_t noCharacter = 0xFFFFFFFF;

// Takes one character off the front; noCharacter (and one byte gone) when the bytes are no UTF-8 (RFC 3629).
char32_t takeUtf8(std::string_view& utf8) {
    const auto first = static_cast<unsigned char>(utf8.front());
    std::size_t length = 0;
    char32_t point = 0;
    char32_t least = 0;
    if (first < 0x80) {
        length = 1, point = first;
    } else if ((first & 0xE0) == 0xC0) {
        length = 2, point = first & 0x1Fu, least = 0x80;
    } else if ((first & 0xF0) == 0xE0) {
        length = 3, point = first & 0x0Fu, least = 0x800;
    } else if ((first & 0xF8) == 0xF0) {
        length = 4, point = first & 0x07u, least = 0x10000;
    }
    bool good = length != 0 && utf8.size() >= length;
    for (std::size_t i = 1; good && i < length; ++i) {
        const auto next = static_cast<unsigned char>(utf8[i]);
        good = (next & 0xC0) == 0x80;
        point = (point << 6) | (next & 0x3Fu);
    }
    good = good && point >= least;
    utf8.remove_prefix(good ? length : 1);
    return good ? point : noCharacter;
}

std::optional<char> byteOf(char32_t point) {
    if (point < 0x80) return static_cast<char>(point);
    for (std::size_t i = 0; i < highHalf.size(); ++i)
        if (highHalf[i] == point) return static_cast<char>(static_cast<unsigned char>(i + 128));
    return std::nullopt;
}

// The longest number at the front of `text`: sign, digits, point, exponent. Empty when there is none.
std::string_view leadingNumber(std::string_view text) {
    std::size_t i = 0;
    const auto skipDigits = [&] {
        const std::size_t from = i;
        while (i < text.size() && digits.find(text[i]) != std::string_view::npos)
            ++i;
        return i - from;
    };
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    std::size_t count = skipDigits();
    if (i < text.size() && text[i] == '.') {
        ++i;
        count += skipDigits();
    }
    if (count == 0) return {};
    const std::size_t mantissa = i;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        ++i;
        if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
        if (skipDigits() == 0) i = mantissa;
    }
    return text.substr(0, i);
}

// Nothing when the number is beyond the type's range.
std::optional<double> numberOf(std::string_view text) {
    if (text.starts_with('+')) text.remove_prefix(1);
    double value = 0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), value);
    return problem == std::errc::result_out_of_range ? std::nullopt : std::optional(value);
}

double nearestTo(std::string_view outOfRange) {
    using Limits = std::numeric_limits<double>;
    const auto exponent = outOfRange.find_first_of("eE");
    if (exponent != std::string_view::npos && outOfRange[exponent + 1] == '-') return 0;
    return outOfRange.starts_with('-') ? Limits::lowest() : Limits::max();
}

double wholeNumber(std::string_view text) {
    if (!isNumeric(text)) throw RunTimeError(error_number::TypeMismatch, "Type mismatch");
    const auto value = numberOf(Trim(text));
    if (!value) throw RunTimeError(error_number::Overflow, "Overflow");
    return *value;
}

template <class Int>
Int rounded(double value) {
    const double whole = std::nearbyint(value);  // half to even in the default rounding mode
    if (!(whole >= std::numeric_limits<Int>::min() && whole <= std::numeric_limits<Int>::max()))
        throw RunTimeError(error_number::Overflow, "Overflow");
    return static_cast<Int>(whole);
}

}  // namespace

std::string_view Trim(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

char UpperChar(char c) {
    return mapped(upperTable, c);
}
std::string Upper(std::string_view text) {
    return mappedText(upperTable, text);
}
std::string Lower(std::string_view text) {
    return mappedText(lowerTable, text);
}

std::string withoutAccents(std::string_view capitals) {
    return mappedText(bareTable, capitals);
}

bool equalNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && compareNoCase(a, b) == 0;
}

int compareNoCase(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const auto x = static_cast<unsigned char>(UpperChar(a[i]));
        const auto y = static_cast<unsigned char>(UpperChar(b[i]));
        if (x != y) return x < y ? -1 : 1;
    }
    if (a.size() == b.size()) return 0;
    return a.size() < b.size() ? -1 : 1;
}

std::string_view Mid(std::string_view text, std::size_t start, std::size_t length) {
    if (start == 0) throw RunTimeError(error_number::InvalidCall, "Invalid procedure call or argument");
    return start > text.size() ? std::string_view{} : text.substr(start - 1, length);
}
std::string_view Mid(std::string_view text, std::size_t start) {
    return Mid(text, start, std::string_view::npos);
}
std::string_view Left(std::string_view text, std::size_t length) {
    return text.substr(0, length);
}
std::string_view Right(std::string_view text, std::size_t length) {
    return length >= text.size() ? text : text.substr(text.size() - length);
}

std::size_t InStr(std::string_view text, std::string_view part, std::size_t start) {
    if (start == 0) throw RunTimeError(error_number::InvalidCall, "Invalid procedure call or argument");
    const auto found = text.find(part, start - 1);
    return found == std::string_view::npos ? 0 : found + 1;
}

std::size_t InStrRev(std::string_view text, std::string_view part) {
    const auto found = text.rfind(part);
    return found == std::string_view::npos ? 0 : found + 1;
}

std::string Replace(std::string_view text, std::string_view what, std::string_view with) {
    if (what.empty()) return std::string(text);
    std::string result;
    result.reserve(text.size());
    std::size_t from = 0;
    for (std::size_t at = text.find(what); at != std::string_view::npos; at = text.find(what, from)) {
        result.append(text, from, at - from).append(with);
        from = at + what.size();
    }
    return result.append(text, from);
}

std::vector<std::string_view> Split(std::string_view text, std::string_view separator) {
    std::vector<std::string_view> pieces;
    if (text.empty()) return pieces;
    std::size_t from = 0;
    for (std::size_t at = text.find(separator); at != std::string_view::npos && !separator.empty();
         at = text.find(separator, from)) {
        pieces.push_back(text.substr(from, at - from));
        from = at + separator.size();
    }
    pieces.push_back(text.substr(from));
    return pieces;
}

double Val(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const auto number = leadingNumber(text);
    if (number.empty()) return 0;
    const auto value = numberOf(number);
    return value ? *value : nearestTo(number);
}

bool isNumeric(std::string_view text) {
    text = Trim(text);
    return !text.empty() && leadingNumber(text).size() == text.size();
}

std::int16_t CInt16(double value) {
    return rounded<std::int16_t>(value);
}
std::int32_t CInt32(double value) {
    return rounded<std::int32_t>(value);
}
std::int16_t CInt16(std::string_view text) {
    return CInt16(wholeNumber(text));
}
std::int32_t CInt32(std::string_view text) {
    return CInt32(wholeNumber(text));
}

std::string NumberText(double value) {
    std::array<char, 32> buffer{};
    const auto [end, problem] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 15);
    (void)problem;  // 15 digits, a sign, a point and an exponent always fit
    return {buffer.data(), end};
}

std::string_view BooleanText(bool value) {
    return value ? "True" : "False";
}

std::string utf8FromCodePage(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size() + text.size() / 2);
    for (char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        appendUtf8(utf8, byte < 128 ? byte : highHalf[byte - 128u]);
    }
    return utf8;
}

std::optional<std::string> codePageFromUtf8(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto byte = byteOf(takeUtf8(utf8));
        if (!byte) return std::nullopt;
        text += *byte;
    }
    return text;
}

std::string codePageFromUtf8Lossy(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty())
        text += byteOf(takeUtf8(utf8)).value_or('?');
    return text;
}

}  // namespace vell
