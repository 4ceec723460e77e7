// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/errors.h"
#include "store/DayIndex.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TroubledFiles.h"

namespace vell::test {
namespace {

class DayIndexTest : public testing::Test {
  protected:
    int mark(const std::string& pdf) { return index_.markDownloaded(folder_.text() + "\\", pdf); }
    void put(std::string_view text) { folder_.put("ALLFILES.DIR", text); }
    [[nodiscard]] std::string now() const { return folder_.get("ALLFILES.DIR"); }

    TempFolder folder_;
    TroubledFiles files_;
    DayIndex index_{files_};
};

TEST_F(DayIndexTest, rewritesTheFileWithTheMarksOfTheClippingAndAnEmptyLastLine) {
    const struct {
        std::string before, pdf, after;
        int lines;
    } table[] = {
        {"A.PDF||N||-||1", "A.PDF", "A.PDF||N||d||1\r\n\r\n", 1},
        {"A.PDF||N||-||1\r\nB.PDF||-||\r\n", "B.PDF", "A.PDF||N||-||1\r\nB.PDF||d||\r\n\r\n", 1},
        {"A.PDF||-||-||-||\r\n", "A.PDF", "A.PDF||d||-||d||\r\n\r\n", 1},
        {"A.PDF||d||\r\n\r\n", "A.PDF", "A.PDF||d||\r\n\r\n", 1},
        {"A.PDF||-||\r\nA.PDF||x||-||\r\n", "A.PDF", "A.PDF||d||\r\nA.PDF||x||d||\r\n\r\n", 2},
        {"no field\r\n\r\nA.PDF||-||\r\njunk", "A.PDF", "A.PDF||d||\r\n\r\n", 1},
        {"A.PDF||-||\r\n", "a.PDF", "A.PDF||-||\r\n\r\n", 0},
        {"XA.PDF||-||\r\n", "A.PDF", "XA.PDF||-||\r\n\r\n", 0},
        {"", "A.PDF", "\r\n", 0},
    };
    for (const auto& row : table) {
        put(row.before);
        EXPECT_EQ(mark(row.pdf), row.lines) << row.before;
        EXPECT_EQ(now(), row.after);
    }
}

TEST_F(DayIndexTest, readsAgainOnlyWhatSomebodyElseHasChanged) {
    put("A.PDF||-||\r\nB.PDF||-||\r\nC.PDF||-||\r\n");
    mark("A.PDF");
    mark("B.PDF");
    EXPECT_EQ(files_.Reads, 1);
    EXPECT_EQ(now(), "A.PDF||d||\r\nB.PDF||d||\r\nC.PDF||-||\r\n\r\n");
    put("C.PDF||-||1\r\nD.PDF||-||\r\n");
    EXPECT_EQ(mark("C.PDF"), 1);
    EXPECT_EQ(now(), "C.PDF||d||1\r\nD.PDF||-||\r\n\r\n");
    EXPECT_EQ(files_.Reads, 2);
}

TEST_F(DayIndexTest, forgetsAMarkThatDidNotReachTheFile) {
    put("A.PDF||-||\r\nB.PDF||-||\r\n");
    const std::string kept[] = {"A.PDF||-||\r\nB.PDF||-||\r\n", "A.PDF||-||\r\nB.PDF||d||\r\n\r\n"};
    for (const auto& text : kept) {  // the first is written as a whole, the second one byte of it
        files_.Trouble = "ALLFILES";
        EXPECT_THROW(mark("A.PDF"), RunTimeError);
        EXPECT_EQ(now(), text);
        files_.Trouble.clear();
        mark("B.PDF");
        EXPECT_EQ(now(), kept[1]);
    }
    std::filesystem::remove(folder_.path() / "ALLFILES.DIR");
    EXPECT_THROW(mark("A.PDF"), RunTimeError);
    EXPECT_FALSE(folder_.has("ALLFILES.DIR"));
}

}  // namespace
}  // namespace vell::test
