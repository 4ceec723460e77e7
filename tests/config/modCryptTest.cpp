// SPDX-License-Identifier: MIT
#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

#include "config/modCrypt.h"

namespace vell::test {
namespace {

class Procedures : public ErrorLog {
  public:
    void LogError(const RunTimeError& error, std::string_view procedure) noexcept override {
        Names.append(std::to_string(error.Number)).append(" ").append(procedure).append("\n");
    }
    std::string Names;
};

TEST(modCryptTest, givesBackEveryByteAtEveryLength) {
    Procedures log;
    for (const char* given : {"", "z", "another key"}) {
        for (std::size_t length = 0; length < 300; ++length) {
            std::string clear;
            for (std::size_t i = 0; i < length; ++i)
                clear += static_cast<char>(i * 7 + length);
            std::string key = given;
            const std::string scrambled = Encrypt(clear, key, log);
            EXPECT_TRUE(
                std::all_of(scrambled.begin(), scrambled.end(), [](unsigned char c) { return c >= 100 && c <= 199; }));
            EXPECT_EQ(scrambled.size(), (clear.size() * 3 + 1) / 2);
            ASSERT_EQ(Decrypt(scrambled, key, log), clear) << given << " " << length;
        }
    }
    EXPECT_EQ(log.Names, "");
}

std::string bytes(std::initializer_list<int> codes) {
    std::string text;
    for (const int code : codes)
        text += static_cast<char>(code);
    return text;
}

TEST(modCryptTest, scramblesAsTheFilesOfEarlierVersionsDo) {
    const struct {
        std::string clear, key, scrambled;
    } table[] = {
        {"A", "(", bytes({110, 105})},         // 65 + 40 = 105: pieces 10 and 5
        {"2", "(", bytes({109, 100})},         // 50 + 40 = 090
        {"A", "", bytes({119, 101})},          // the built-in key's offset is 126
        {"AB", "", bytes({119, 111, 192})},    // 191 192
        {"AB", "ab", bytes({135, 183, 159})},  // rising: both adding rules, offset 293
        {"A", "ba", bytes({106, 106})},        // falling: taken off once, offset 1
        {"A", "aa", bytes({116, 102})},        // equal: taken off and added again, offset 97
        {"A",
         "\xC8"
         "2",
         bytes({116, 105})},  // 200 and 50: taken off twice, offset 100
    };
    Procedures log;
    for (const auto& row : table) {
        std::string key = row.key;
        EXPECT_EQ(Encrypt(row.clear, key, log), row.scrambled) << row.clear << " " << row.key;
        EXPECT_EQ(key, row.key.empty() ? "^%$enc#@!" : row.key);
    }
    std::string untouched;
    EXPECT_EQ(Encrypt("", untouched, log) + Decrypt("", untouched, log) + untouched, "");
}

TEST(modCryptTest, refusesWhatItHasNotScrambledAndSaysSoOnce) {
    const std::string damaged[] = {
        bytes({119}),            // half a group
        bytes({119, 150}),       // a last digit of two digits
        bytes({99, 111, 192}),   // below the codes
        bytes({119, 200, 192}),  // above them
        bytes({100, 100, 100}),  // 000 less the offset
        bytes({138, 102}),       // 382 is one past the last character
        "hello",
        bytes({119, 111, 192, 119}),
    };
    for (const auto& text : damaged) {
        Procedures log;
        std::string key;
        try {
            const std::string clear = Decrypt(text, key, log);
            ADD_FAILURE() << text << " gave " << clear;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number, 20001);
            EXPECT_EQ(error.Description, "You have entered the wrong encryption string");
        }
        EXPECT_EQ(log.Names, "20000 Decrypt()\n") << text;
    }
    std::string tooLarge;
    for (int code = 1; code < 256; ++code)
        tooLarge += static_cast<char>(code);
    Procedures log;
    EXPECT_EQ(Encrypt("\xFF", tooLarge, log), "");
    EXPECT_EQ(log.Names, "6 Encrypt()\n");
}

}  // namespace
}  // namespace vell::test
