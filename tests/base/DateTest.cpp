// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/Date.h"

namespace vell {
namespace {

TEST(DateTest, readsOnlyRealDaysInTheExactForm) {
    EXPECT_EQ(Date::fromFolderName("07032004"), (Date{2004, 3, 7}));
    EXPECT_EQ(Date::fromDayName("29/02/2004"), (Date{2004, 2, 29}));
    for (const char* text : {"29022003", "00012004", "01132004", "7032004", "0703200x", "01010000", "", "+7032004"})
        EXPECT_EQ(Date::fromFolderName(text), std::nullopt) << text;
    for (const char* text : {"07032004", "07-03-2004", "7/3/2004", "31/04/2004"})
        EXPECT_EQ(Date::fromDayName(text), std::nullopt) << text;
}

TEST(DateTest, walksOverMonthAndYearEnds) {
    EXPECT_EQ((Date{2003, 12, 31}).plusDays(1), (Date{2004, 1, 1}));
    EXPECT_EQ((Date{2004, 3, 1}).plusDays(-1), (Date{2004, 2, 29}));
    EXPECT_EQ((Date{2004, 3, 7}).weekday(), 7);
    EXPECT_EQ((Date{2004, 3, 8}).weekday(), 1);
}

TEST(DateTest, showsLeadingZeros) {
    EXPECT_EQ((Date{2004, 3, 7}).folderName(), "07032004");
    EXPECT_EQ((LocalTime{{2004, 3, 7}, 6, 5, 9}).logText(), "07/03/2004 06:05:09");
}

}  // namespace
}  // namespace vell
