// SPDX-License-Identifier: MIT
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "base/text.h"

namespace vell {
namespace {

TEST(TextTest, everyByteSurvivesTheWayToTheScreenAndBack) {
    std::string all;
    for (int i = 0; i < 256; ++i)
        all += static_cast<char>(i);
    EXPECT_EQ(codePageFromUtf8(utf8FromCodePage(all)), all);
    EXPECT_EQ(utf8FromCodePage("\xC1\xE2\x80"), "Αβ€");
    EXPECT_EQ(codePageFromUtf8("Жa"), std::nullopt);
    EXPECT_EQ(codePageFromUtf8Lossy("Жa\xFF\xC0\x80"), "?a???");
}

TEST(TextTest, capitalsFollowTheCodePage) {
    EXPECT_EQ(Upper("az\xE1\xF9\xF2\xF3\xDC\xFD\xC0\xE0"), "AZ\xC1\xD9\xD3\xD3\xA2\xBE\xC0\xE0");
    EXPECT_EQ(Lower(Upper("\xDC\xFA\xE2")), "\xDC\xFA\xE2");
    EXPECT_TRUE(equalNoCase("a.pdf\xE1", "A.PDF\xC1"));
    EXPECT_FALSE(equalNoCase("a", "ab"));
}

TEST(TextTest, positionsAreOneBased) {
    EXPECT_EQ(Mid("abcdef", 2, 3), "bcd");
    EXPECT_EQ(Mid("abc", 3, 9), "c");
    EXPECT_EQ(Mid("abc", 4), "");
    EXPECT_THROW((void)Mid("abc", 0), RunTimeError);
    EXPECT_EQ(InStr("a||b||", "||"), 2U);
    EXPECT_EQ(InStr("a||b||", "||", 3), 5U);
    EXPECT_EQ(InStrRev("a.b.c", "."), 4U);
    EXPECT_EQ(InStr("abc", "x"), 0U);
    EXPECT_EQ(Right("abc", 9), "abc");
}

TEST(TextTest, splitsAndReplacesWithoutOverlap) {
    EXPECT_EQ(Split("a||b||||", "||"), (std::vector<std::string_view>{"a", "b", "", ""}));
    EXPECT_TRUE(Split("", "||").empty());
    EXPECT_EQ(Replace("||-||-||", "||-||", "||d||"), "||d||-||");
}

TEST(TextTest, readsTheNumberThatATextBeginsWith) {
    EXPECT_EQ(Val("12abc"), 12);
    EXPECT_EQ(Val("  7.5"), 7.5);
    EXPECT_EQ(Val("7."), 7);
    EXPECT_EQ(Val("-3x"), -3);
    EXPECT_EQ(Val("+4"), 4);
    EXPECT_EQ(Val("1e2"), 100);
    EXPECT_EQ(Val(".5"), 0.5);
    EXPECT_EQ(Val("1e999"), std::numeric_limits<double>::max());
    EXPECT_EQ(Val("-1e999"), std::numeric_limits<double>::lowest());
    for (const char* one : {"1,000", "1e"})
        EXPECT_EQ(Val(one), 1) << one;
    for (const char* none : {"abc", "", "\t5", "inf", "nan", "0x10", "1e-999"})
        EXPECT_EQ(Val(none), 0) << none;
}

TEST(TextTest, roundsHalfToEvenAndRefusesWhatDoesNotFit) {
    EXPECT_EQ(CInt16(2.5), 2);
    EXPECT_EQ(CInt16(3.5), 4);
    EXPECT_EQ(CInt16(-0.5), 0);
    EXPECT_EQ(CInt32(" 2147483647 "), 2147483647);
    for (const char* text : {"", "x", "12x", "1 2"})
        EXPECT_THROW((void)CInt16(text), RunTimeError) << text;
    EXPECT_THROW((void)CInt16(32768), RunTimeError);
    EXPECT_THROW((void)CInt32("1e400"), RunTimeError);
}

TEST(TextTest, showsNumbersWithFifteenDigits) {
    EXPECT_EQ(NumberText(3), "3");
    EXPECT_EQ(NumberText(10.0 / 3), "3.33333333333333");
    EXPECT_EQ(NumberText(0.5), "0.5");
    EXPECT_EQ(NumberText(-1.0 / 3), "-0.333333333333333");
}

}  // namespace
}  // namespace vell
