// SPDX-License-Identifier: MIT
#include <algorithm>
#include <numeric>

#include <gtest/gtest.h>

#include "config/modCrypt.h"

namespace vell::test {

class modCryptTest : public testing::Test, protected ErrorLog {
  protected:
    void LogError(const RunTimeError& error, std::string_view procedure) noexcept override {
        errors_.append(std::to_string(error.Number)).append(" ").append(procedure);
    }
    static std::string bytes(std::initializer_list<int> codes) { return {codes.begin(), codes.end()}; }

    std::string errors_;
};

TEST_F(modCryptTest, givesBackEveryByteAtEveryLength) {
    for (std::string key : {"", "z", "another key"}) {
        for (std::size_t length = 0; length < 300; ++length) {
            std::string clear(length, '\0');
            std::iota(clear.begin(), clear.end(), static_cast<char>(length));
            const std::string scrambled = Encrypt(clear, key, *this);
            EXPECT_TRUE(std::ranges::all_of(scrambled, [](unsigned char c) { return c >= 100 && c <= 199; }));
            ASSERT_EQ(Decrypt(scrambled, key, *this), clear) << key << " " << length;
        }
    }
    EXPECT_EQ(errors_, "");
}

TEST_F(modCryptTest, comesToTheNumbersThatEveryBuildReads) {
    std::string rising(255, '\0');
    std::iota(rising.begin(), rising.end(), '\1');
    for (const auto& [clear, given, scrambled] :
         std::initializer_list<std::tuple<std::string, std::string, std::string>>{
             {"A", "(", bytes({110, 105})},         // 65 + 40 = 105: pieces 10 and 5
             {"2", "(", bytes({109, 100})},         // 50 + 40 = 090
             {"AB", "", bytes({119, 111, 192})},    // the built-in key's offset is 126: 191 192
             {"AB", "ab", bytes({135, 183, 159})},  // rising: both adding rules, offset 293
             {"A", "ba", bytes({106, 106})},        // falling: taken off once, offset 1
             {"A", "aa", bytes({116, 102})},        // equal: taken off and added again, offset 97
             {"A", "\xC8\x32", bytes({116, 105})},  // 200 and 50: taken off twice, offset 100
             {"\xFF", rising, ""}}) {               // the offset leaves 16 bits
        std::string key = given;
        EXPECT_EQ(Encrypt(clear, key, *this), scrambled) << clear << " " << given;
        EXPECT_EQ(key, given.empty() ? "^%$enc#@!" : given);
    }
    EXPECT_EQ(errors_, "6 Encrypt()");
    std::string untouched;
    EXPECT_EQ(Encrypt("", untouched, *this) + Decrypt("", untouched, *this) + untouched, "");
}

TEST_F(modCryptTest, refusesWhatItHasNotScrambled) {
    // Half a group; a last digit of two digits; below the codes; above them; less than the offset; past the last byte.
    for (const auto& damaged : {bytes({119}), bytes({119, 150}), bytes({99, 111, 192}), bytes({119, 200, 192}),
                                bytes({100, 100, 100}), bytes({138, 102}), bytes({119, 111, 192, 119})}) {
        std::string key;
        errors_.clear();
        EXPECT_THROW((void)Decrypt(damaged, key, *this), RunTimeError) << damaged;
        EXPECT_EQ(errors_, "20000 Decrypt()");
    }
}

}  // namespace vell::test
