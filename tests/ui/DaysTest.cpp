// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/support/RecordingView.h"
#include "tests/support/StoreRig.h"
#include "ui/ClippingsBrowser.h"
#include "ui/days/DayCounts.h"
#include "ui/days/DayTypeAhead.h"
#include "ui/days/dayToShow.h"

namespace vell::test {
namespace {

// Three days: 09/03/2004 to 07/03/2004, the last one chosen.
class DaysTest : public testing::Test, protected StoreRig {
  protected:
    DaysTest() {
        for (const char* name : {"07032004/A.PDF", "07032004/B.PDF", "08032004/A.pdf", "08032004/A.TXT", "09032004/x"})
            folder.put(std::string("clips/") + name, "x");
        folder.put("clips/08032004/OPENED.DIR", "[VIEW]\r\nA.PDF=1\r\n");
    }
    // The texts of the days, after all that is due has been counted.
    std::string texts() {
        while (const auto next = loop.untilNextTimer()) {
            clock.advance(*next);
            loop.DoEvents();
        }
        std::string all;
        for (const auto& [date, text] : view.DayTexts)
            all += text + ";";
        return all;
    }

    RecordingView view;
    DayCounts counts{{store, loop, clock, log}};
    ClippingsBrowser browser{{store, files, view, clock, log, setup, day, english, counts}};
};

TEST_F(DaysTest, countsDaysInTheLoopOnceSomebodyLooksAtThem) {
    browser.PopulateDateCombo();
    EXPECT_EQ(texts(), "Sun 07/03/2004;Mon 08/03/2004;Tue 09/03/2004;");
    browser.chooseDay(march7);
    EXPECT_EQ(view.DayTexts[march7], "Sun 07/03/2004 (2, 2 unread)") << "it was read anyway";
    counts.start();
    EXPECT_EQ(texts(), "Sun 07/03/2004 (2, 2 unread);Mon 08/03/2004 (1);Tue 09/03/2004 (0);");
    EXPECT_FALSE(loop.untilNextTimer()) << "nothing goes on when all is known";
}

TEST_F(DaysTest, countsAgainWhatHasChanged) {
    browser.PopulateDateCombo();
    browser.chooseDay(march7);
    counts.start();
    texts();
    store.markOpened(std::vector{day.gDayFolder + "A.PDF"}, true);
    browser.refreshMarks(day.gDayFolder + "A.PDF");
    const std::string elsewhere = store.folderOfDay(march8) + "A.pdf";
    store.markOpened(std::vector{elsewhere}, false);
    browser.refreshMarks(elsewhere);
    EXPECT_EQ(texts(), "Sun 07/03/2004 (2, 1 unread);Mon 08/03/2004 (1, 1 unread);Tue 09/03/2004 (0);");
    clock.advance(std::chrono::minutes{1});
    folder.put("clips/09032004/A.PDF", "x");
    folder.put("clips/10032004/A.PDF", "x");
    browser.refreshDuringRun({2004, 3, 9});
    std::filesystem::remove_all(folder.path() / "clips/08032004");
    browser.PopulateDateCombo();
    EXPECT_EQ(texts(), "Sun 07/03/2004 (2, 1 unread);Tue 09/03/2004 (1, 1 unread);Wed 10/03/2004 (1, 1 unread);");
    EXPECT_EQ(counts.of(march8), std::nullopt);
    folder.put("clips/09032004/B.PDF", "x");
    counts.recountAll();
    EXPECT_THAT(texts(), testing::HasSubstr("Tue 09/03/2004 (2, 2 unread)"));
    counts.recount(march7);
    put("C.PDF", "x");
    EXPECT_EQ(counts.countNow(march7), (DayCount{3, 2})) << "before its turn has come";
    EXPECT_THAT(texts(), testing::HasSubstr("Sun 07/03/2004 (3, 2 unread)"));
}

TEST_F(DaysTest, aDayThatCannotBeReadIsNoReasonToStop) {
    folder.put("clips/10032004/A.PDF", "x");
    std::filesystem::create_directory(folder.path() / "clips/09032004/OPENED.DIR");
    folder.put("clips/09032004/A.PDF", "x");
    browser.PopulateDateCombo();
    counts.start();
    EXPECT_THAT(texts(), testing::HasSubstr("Sun 07/03/2004 (2, 2 unread);Mon 08/03/2004 (1);Tue 09/03/2004 (1, 1 un"));
}

TEST(DayToShowTest, isTheOneThatWasChosenLastAsLongAsItIsSelected) {
    const Date a{2004, 3, 9}, b{2004, 3, 8}, c{2004, 3, 7};
    EXPECT_EQ(dayToShow({b}, b, a), b);
    EXPECT_EQ(dayToShow({a, b, c}, c, a), c) << "selected with Shift";
    EXPECT_EQ(dayToShow({a, c}, b, a), a) << "another one was taken out";
    EXPECT_EQ(dayToShow({b, c}, a, a), b) << "the shown one was taken out";
    EXPECT_EQ(dayToShow({}, b, b), b);
    EXPECT_EQ(dayToShow({}, std::nullopt, std::nullopt), std::nullopt);
}

TEST(DayTypeAheadTest, findsADayByItsDateOrItsWeekday) {
    DrivenClock clock;
    DayTypeAhead typeAhead(clock);
    const std::vector<DayLine> days{{{2004, 3, 9}, "Tue 09/03/2004 (7, 7 unread)"},
                                    {{2004, 3, 8}, "Mon 08/03/2004"},
                                    {{2004, 3, 7}, "Sun 07/03/2004"},
                                    {{2004, 3, 1}, "Mon 01/03/2004 (1)"}};
    const auto typed = [&](std::string_view letters) {
        clock.advance(std::chrono::seconds{2});
        std::optional<std::size_t> place = 0;
        for (const char letter : letters)
            place = typeAhead.type(letter, days, place).value_or(99);
        return *place;
    };
    EXPECT_EQ(typed("07"), 2U);
    EXPECT_EQ(typed("01/03/2004"), 3U);
    EXPECT_EQ(typed("m"), 1U);
    EXPECT_EQ(typed("mm"), 3U);
    EXPECT_EQ(typed("mon 01"), 3U);
    EXPECT_EQ(typed("7"), 99U) << "the count is no date";
}

}  // namespace
}  // namespace vell::test
