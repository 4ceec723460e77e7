// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/support/RecordingView.h"
#include "tests/support/StoreRig.h"
#include "ui/ClippingsBrowser.h"
#include "ui/days/DayCounts.h"

namespace vell::test {

using testing::ElementsAre;

class ClippingsBrowserTest : public testing::Test, protected StoreRig {
  protected:
    RecordingView view;
    DayCounts counts{{store, loop, clock, log}};
    ClippingsBrowser browser{{store, files, view, clock, log, setup, day, english, counts}};
};

TEST_F(ClippingsBrowserTest, listsRealDaysNewestFirstAndKeepsTheChosenOne) {
    folder.put("clips/08032004", "a file");
    for (const char* name : {"07032004", "15022004", "31122003", "30022004", "0703200", "070320044", "abcdefgh", ".x"})
        files.MakeFolder(setup.LocalDir + "\\" + name);
    browser.PopulateDateCombo();
    EXPECT_EQ(view.Days, "*07/03/2004 15/02/2004 31/12/2003 ");
    EXPECT_FALSE(browser.chooseDay({2004, 2, 30}));
    EXPECT_TRUE(browser.chooseDay({2004, 2, 15}));
    files.MakeFolder(setup.LocalDir + "\\09032004");
    browser.refresh();
    EXPECT_EQ(view.Days, "09/03/2004 07/03/2004 *15/02/2004 31/12/2003 ");
    files.RemoveFolder(setup.LocalDir + "\\15022004");
    browser.refresh();
    EXPECT_EQ(view.Days, "09/03/2004 07/03/2004 31/12/2003 ");
    EXPECT_EQ(browser.chosenDay(), std::nullopt);
    setup.LocalDir = folder.text() + "/none";
    browser.PopulateDateCombo();
    EXPECT_EQ(view.Days, "");
}

TEST_F(ClippingsBrowserTest, saysWhyTheListIsEmptyAndWhatHelps) {
    const auto hint = [this] { return std::exchange((browser.refresh(), view.Hint), ""); };
    const std::string needs = "|To fetch clippings, Vell needs to know:\n", folderOfAll = setup.LocalDir;
    EXPECT_EQ(hint(), "Welcome to Vell" + needs + "host name, user name, password.");
    setup.Host = setup.Uid = "x";
    EXPECT_EQ(hint(), "Setup is not complete" + needs + "password.");
    setup.Pwd = "x";
    EXPECT_EQ(hint(), "No clippings yet|Fetch those of today now, or choose other days first.");
    setup.LocalDir = "";
    EXPECT_EQ(hint(), "Setup is not complete" + needs + "download folder.");
    setup.LocalDir = folderOfAll;
    files.MakeFolder(day.gDayFolder);
    EXPECT_EQ(hint(), "No day is chosen|Choose one on the left.");
    browser.chooseDay(march7);
    EXPECT_EQ(hint(), "No clippings of this day|Nothing has been fetched for 07/03/2004.");
    put("A.PDF", "x");
    EXPECT_EQ(hint(), "");
    browser.setFilter({{"c"}, {}});
    EXPECT_EQ(view.Hint, "Nothing passes the filter|1 clipping of this day is hidden.");
}

TEST_F(ClippingsBrowserTest, showsThePdfFilesOfTheDayWithTitlesMarksAndAlert) {
    for (const char* name : {"B.PDF", "A.PDF", "A.TXT", "A.MT", "C.PDF", "D.PDF", ".vell-1-1.part"})
        put(name, "x");
    put("ALLFILES.DIR", "A.PDF||N||\xD4\xC9||C||Y\r\nB.PDF||N||.||C||Y\r\n\r\n");
    put("OPENED.DIR", "[VIEW]\r\nA.PDF=1\r\nC.PDF=1\r\n");
    put("PRINTED.DIR", "[PRINT]\r\nA.PDF=1\r\nB.PDF=1\r\n");
    put("ALERT.MSG", "strike\r\n");
    files.MakeFolder(setup.LocalDir + "\\08032004");
    browser.PopulateDateCombo();
    EXPECT_TRUE(browser.chooseDay(march7));
    EXPECT_EQ(view.Rows, "A.PDF,\xD4\xC9,OP;B.PDF,,P;C.PDF,,O;D.PDF,,;");
    EXPECT_EQ(browser.rows().at(0).path(), day.gDayFolder + "A.PDF");
    EXPECT_THAT((std::vector{view.Count, view.Alert}), ElementsAre("4 Clippings, 2 unread", "strike\r\n"));
    put("E.PDF", "x");
    browser.refreshDuringRun(march7);  // the first is done at once, the next one only when the run can afford it
    put("F.PDF", "x");
    browser.refreshDuringRun(march7);
    EXPECT_EQ(view.Count, "5 Clippings, 3 unread");
    EXPECT_TRUE(browser.chooseDay(march8));
    EXPECT_THAT((std::vector{view.Rows, view.Count, view.Alert}), ElementsAre("", "0 Clippings", ""));
}

TEST_F(ClippingsBrowserTest, countsWhatTheLastDownloadThatBroughtSomethingBroughtUntilItIsOpened) {
    for (const char* name : {"A.PDF", "B.PDF", "C.PDF"})
        put(name, "x");
    put("ALLFILES.DIR", "A.PDF||N||a||C||Y\r\nB.PDF||N||b||D||Y\r\n\r\n");
    browser.news().clippingArrived(day.gDayFolder + "A.PDF");
    browser.news().downloadEnded();
    browser.news().downloadEnded();
    for (const char* name : {"B.PDF", "C.PDF"})
        browser.news().clippingArrived(day.gDayFolder + name);
    browser.refresh();
    EXPECT_EQ(view.Count, "3 Clippings, 3 unread, 2 new");
    store.MarkFileOpened(day.gDayFolder + "C.PDF");
    browser.refreshMarks(day.gDayFolder + "C.PDF");
    EXPECT_EQ(view.Count, "3 Clippings, 2 unread, 1 new");
    browser.setFilter({{"D"}, {}});
    EXPECT_EQ(view.Count, "1 of 3, 1 unread, 1 new");
}

}  // namespace vell::test
