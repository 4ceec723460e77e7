// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/support/RecordingView.h"
#include "tests/support/StoreRig.h"
#include "ui/ClippingsBrowser.h"

namespace vell::test {
namespace {

class ClippingsBrowserTest : public testing::Test, protected StoreRig {
  protected:
    using Days = std::vector<std::string>;

    RecordingView view;
    ClippingsBrowser browser{store, files, view, clock, log, setup, day};
};

TEST_F(ClippingsBrowserTest, listsRealDaysNewestFirstAndKeepsTheChosenOne) {
    for (const char* name : {"07032004", "15022004", "31122003", "30022004", "0703200", "070320044", "abcdefgh", ".x"})
        std::filesystem::create_directories(folder.path() / "clips" / name);
    folder.put("clips/08032004", "a file");
    browser.PopulateDateCombo();
    EXPECT_EQ(view.Days, (Days{"07/03/2004", "15/02/2004", "31/12/2003"}));
    EXPECT_EQ(view.Chosen, "07/03/2004");
    EXPECT_FALSE(browser.chooseDay("30/02/2004"));
    EXPECT_TRUE(browser.chooseDay("15/02/2004"));
    std::filesystem::create_directories(folder.path() / "clips/09032004");
    browser.refresh();
    EXPECT_EQ(view.Chosen, "15/02/2004");
    EXPECT_EQ(view.Days.size(), 4U);
    std::filesystem::remove_all(folder.path() / "clips/15022004");
    browser.refresh();
    EXPECT_EQ(view.Chosen, "");
    EXPECT_EQ(browser.chosenDay(), "");
    setup.LocalDir = folder.text() + "/none";
    browser.PopulateDateCombo();
    EXPECT_TRUE(view.Days.empty());
}

TEST_F(ClippingsBrowserTest, showsThePdfFilesOfTheDayWithTitlesMarksAndAlert) {
    for (const char* name : {"B.PDF", "A.PDF", "A.TXT", "A.MT", "C.PDF", "D.PDF", ".vell-1-1.part"})
        putIntoDay(name, "x");
    putIntoDay("ALLFILES.DIR", "A.PDF||N||\xD4\xC9||C||Y\r\nB.PDF||N||.||C||Y\r\n\r\n");
    putIntoDay("OPENED.DIR", "[VIEW]\r\nA.PDF=1\r\nC.PDF=1\r\n");
    putIntoDay("PRINTED.DIR", "[PRINT]\r\nA.PDF=1\r\nB.PDF=1\r\n");
    putIntoDay("ALERT.MSG", "strike\r\n");
    browser.PopulateDateCombo();
    ASSERT_TRUE(browser.chooseDay("07/03/2004"));
    EXPECT_EQ(view.Rows, "A.PDF,\xD4\xC9,OP;B.PDF,,P;C.PDF,,O;D.PDF,,;");
    EXPECT_EQ(browser.rows().at(0).path(), day.gDayFolder + "A.PDF");
    EXPECT_EQ(view.Count, "4 Clippings");
    EXPECT_EQ(view.Alert, "strike\r\n");
    std::filesystem::create_directories(folder.path() / "clips/08032004");
    browser.PopulateDateCombo();
    ASSERT_TRUE(browser.chooseDay("08/03/2004"));
    EXPECT_EQ(view.Rows + view.Count + view.Alert, "0 Clippings");
    EXPECT_EQ(view.Busy, 0);
}

TEST_F(ClippingsBrowserTest, refreshesDuringARunOnlyAsOftenAsTheRunCanAfford) {
    putIntoDay("A.PDF", "x");
    browser.refresh();
    putIntoDay("B.PDF", "x");
    clock.advance(std::chrono::milliseconds{249});
    browser.refreshDuringRun();
    EXPECT_EQ(view.Count, "1 Clippings");
    clock.advance(std::chrono::milliseconds{1});
    browser.refreshDuringRun();
    EXPECT_EQ(view.Count, "2 Clippings");
}

}  // namespace
}  // namespace vell::test
