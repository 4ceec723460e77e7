// SPDX-License-Identifier: MIT
#include "config/modCrypt.h"

#include <cstddef>

#include "base/text.h"

namespace vell {

namespace {

constexpr std::string_view defaultKey = "^%$enc#@!";
constexpr std::int32_t firstCode = 100;  // a scrambled character is this plus two decimal digits
constexpr std::size_t groupLength = 3;   // decimal digits per clear character

std::int32_t codeOf(char c) {
    return static_cast<unsigned char>(c);
}

[[noreturn]] void raiseUnexpected() {
    throw RunTimeError(unexpectedScramblingError, "Unexpected Error");
}

// The only thing of the key that the scrambling uses. Each rule sees what the rule before it left, and a character may
// be taken off twice: every build that reads the same file has to come to the same number.
std::int32_t offsetOf(std::string_view key) {
    std::int32_t off = codeOf(key[0]);
    for (std::size_t i = 1; i < key.size(); ++i) {
        const std::int32_t a = codeOf(key[i]);
        const std::int32_t p = codeOf(key[i - 1]);
        for (int twice = 0; twice < 2; ++twice)
            if (off - a >= 0 && a <= p) off -= a;
        if (a >= off && a >= p) off += a;
        if (a < off && a >= p) off += a;
    }
    return off;
}

void applyDefault(std::string& key) {
    if (key.empty()) key = defaultKey;
}

std::string encrypted(std::string_view clear, std::string_view key) {
    const std::int32_t off = offsetOf(key);
    std::string figures;
    for (char c : clear) {
        const std::int16_t value = CInt16(static_cast<double>(codeOf(c) + off));
        if (value < 100) figures += '0';
        figures += std::to_string(value);
    }
    std::string scrambled;
    for (std::size_t at = 0; at < figures.size(); at += 2) {
        const std::string piece = figures.substr(at, 2);
        if (at > 0 && piece.size() == 2 && piece[0] == '-') raiseUnexpected();
        scrambled += static_cast<char>(CInt16(piece) + firstCode);
    }
    return scrambled;
}

// How many digits the last character carries: as many as make the whole count a multiple of three.
std::size_t digitsOfLast(std::size_t characters) {
    const std::size_t before = (characters - 1) * 2;
    for (std::size_t digits : {std::size_t{1}, std::size_t{2}})
        if ((before + digits) % groupLength == 0) return digits;
    return raiseUnexpected(), 0;
}

std::string figuresOf(std::string_view scrambled) {
    std::string figures;
    for (std::size_t i = 0; i < scrambled.size(); ++i) {
        const std::int32_t value = codeOf(scrambled[i]) - firstCode;
        if (value < 0 || value > 99) raiseUnexpected();
        const bool single = i + 1 == scrambled.size() && digitsOfLast(scrambled.size()) == 1;
        if (single && value > 9) raiseUnexpected();
        if (!single && value < 10) figures += '0';
        figures += std::to_string(value);
    }
    return figures;
}

std::string decrypted(std::string_view scrambled, std::string_view key) {
    const std::int32_t off = offsetOf(key);
    const std::string figures = figuresOf(scrambled);
    std::string clear;
    for (std::size_t at = 0; at < figures.size(); at += groupLength) {
        const std::int32_t code = CInt32(figures.substr(at, groupLength)) - off;
        if (code < 0 || code > 255) raiseUnexpected();
        clear += static_cast<char>(code);
    }
    return clear;
}

}  // namespace

std::string Encrypt(std::string_view clear, std::string& key, ErrorLog& log) {
    return trap(log, "Encrypt()", std::string{}, [&] {
        if (clear.empty()) return std::string{};
        applyDefault(key);
        return encrypted(clear, key);
    });
}

std::string Decrypt(std::string_view scrambled, std::string& key, ErrorLog& log) {
    try {
        if (scrambled.empty()) return {};
        applyDefault(key);
        return decrypted(scrambled, key);
    } catch (...) {
        log.LogError(currentError(), "Decrypt()");
        throw RunTimeError(wrongEncryptionString, "You have entered the wrong encryption string");
    }
}

}  // namespace vell
