// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "base/text.h"
#include "store/Articles.h"
#include "tests/support/RecordingPrinters.h"
#include "tests/support/RecordingShell.h"
#include "tests/support/RecordingView.h"
#include "tests/support/StoreRig.h"
#include "ui/ClippingOpening.h"
#include "ui/ClippingsBrowser.h"
#include "ui/DayCommands.h"
#include "ui/PrintCommands.h"
#include "ui/days/DayCounts.h"
#include "ui/dialogs/frmAutoView.h"
#include "ui/dialogs/frmFilter.h"
#include "ui/list/ClippingSaving.h"
#include "ui/list/PageReader.h"

namespace vell::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
using Texts = std::vector<std::string>;

// A day of four clippings: their names are A to D.
class ClippingCommandsTest : public testing::Test, protected StoreRig {
  protected:
    ClippingCommandsTest() {
        for (const char* name : {"A.PDF", "B.PDF", "C.PDF", "D.PDF"})
            put(name, "x");
        put("ALLFILES.DIR",
            "A.PDF||N||first|| Politics ||News\r\nB.PDF||N||second||POLITICS||News|Comment\r\n"
            "C.PDF||N||third||Politics|Economy||Report\r\nD.PDF||N||fourth||||\r\n\r\n");
        browser.PopulateDateCombo();
        browser.chooseDay(march7);
        setup.PrintAllDelay = 3;
        setup.AutoPlayDelay = 5;
        logged();
    }
    [[nodiscard]] std::string marks() const {
        std::string text;
        for (const ClippingRow& row : browser.rows())
            text += row.Opened && row.Printed ? 'B' : row.Opened ? 'O' : row.Printed ? 'P' : '-';
        return text;
    }
    // The names of the files that the shell was asked for since the last call.
    Texts asked() {
        Texts names;
        for (const std::string_view call : Split(shell.Opened, "\n")) {
            if (call.empty()) continue;
            const std::string_view name = Mid(call, InStrRev(call, "\\") + 1);
            names.emplace_back(name.substr(0, name.find_first_of(" \"")));
        }
        shell.Opened.clear();
        return names;
    }
    void wait(int seconds) {
        clock.advance(std::chrono::seconds{seconds});
        loop.DoEvents();
    }

    RecordingView view;
    RecordingShell shell;
    Texts statuses;
    StatusText status = [this](std::string_view text) { statuses.emplace_back(text); };
    StatusText message = [this](std::string_view text) { view.displayInfoMessageBox(text); };
    Articles articles{shell, boxes, loop, log};
    DayCounts counts{{store, loop, clock, log}};
    ClippingsBrowser browser{{store, files, view, clock, log, setup, day, english, counts}};
    ClippingOpening opening{{browser, store, articles, boxes, log, english}, status, message};
    ClippingSaving saving{{files, loop, boxes, log, english}, status, message};
    RecordingPrinters printers;
    PrintCommands printing{{browser, store, articles, loop, boxes, printers, log, setup, english}, status, message};
    frmAutoView autoView{browser, opening, loop, setup};
    bool busy = false;
    DayCommands days{{browser, store, counts, boxes, log, english}, [this] { return busy; }};
};

TEST_F(ClippingCommandsTest, aDoubleClickOpensOnceAndEnterAlways) {
    opening.grdLocalFiles_DblClick(1);
    EXPECT_EQ(marks(), "-O--");
    EXPECT_THAT(view.Marked, ElementsAre(1U));
    opening.grdLocalFiles_DblClick(1);
    EXPECT_THAT(asked(), ElementsAre("B.PDF"));
    opening.openRows(std::vector<std::size_t>{1});
    EXPECT_THAT(asked(), ElementsAre("B.PDF"));
    shell.Result = 31;
    opening.grdLocalFiles_DblClick(2);
    EXPECT_EQ(marks(), "-O--") << "what could not be opened is not marked";
    opening.grdLocalFiles_DblClick(9);
    EXPECT_NE(logged().find("in grdLocalFiles_DblClick()"), std::string::npos);
}

TEST_F(ClippingCommandsTest, opensTheNextTwentyThatWereNotOpenedAndStopsAtAFailure) {
    for (int i = 10; i < 40; ++i)
        put("E" + std::to_string(i) + ".PDF", "x");
    opening.openRows(std::vector<std::size_t>{0});
    browser.PopulateLocalFilesGrid();
    asked();
    opening.openNext20();
    EXPECT_EQ(asked().size(), 20U);
    opening.openNext20();
    EXPECT_EQ(asked().back(), "E39.PDF");
    opening.openNext20();
    EXPECT_THAT(asked(), IsEmpty());
    boxes.Answers = {Answer::No};
    days.mnuDeleteDay_Click({march7});
    put("F.PDF", "x");
    put("G.PDF", "x");
    browser.PopulateLocalFilesGrid();
    shell.Result = 2;
    opening.openNext20();
    EXPECT_THAT(asked(), ElementsAre("F.PDF"));
    opening.openDayFolder();
    EXPECT_EQ(shell.Opened, day.gDayFolder + " <>\n");
}

TEST_F(ClippingCommandsTest, goesThroughTheListInTheOrderThatIsShown) {
    browser.sortBy(GridColumn::Title);
    EXPECT_EQ(view.Rows, "A.PDF,first,;D.PDF,fourth,;B.PDF,second,;C.PDF,third,;");
    autoView.start(1);
    autoView.stop();
    EXPECT_THAT(asked(), ElementsAre("D.PDF"));
    boxes.Answers = {Answer::Yes};
    printing.mnuPrintAll_Click();
    opening.openNext20();
    EXPECT_THAT(asked(), ElementsAre("A.PDF", "D.PDF", "B.PDF", "C.PDF", "A.PDF", "B.PDF", "C.PDF"));
    browser.PopulateLocalFilesGrid();
    EXPECT_EQ(browser.rows().at(1).File->FileName, "D.PDF") << "the sorting stays when the day is read again";
}

TEST_F(ClippingCommandsTest, worksOnSeveralRowsAndAsksWhenTheyAreMany) {
    const std::vector<std::size_t> rows{0, 2};
    opening.openRows(rows);
    EXPECT_THAT(asked(), ElementsAre("A.PDF", "C.PDF"));
    EXPECT_TRUE(printing.printRows(rows));
    EXPECT_THAT(asked(), ElementsAre("A.PDF", "C.PDF"));
    EXPECT_THAT(statuses, ElementsAre("Printing 1/2 first", "Printing 2/2 third", ""));
    opening.markRows(std::vector<std::size_t>{0, 1}, false);
    opening.markRows(std::vector<std::size_t>{3}, true);
    EXPECT_EQ(marks(), "P-BO");
    EXPECT_EQ(get("OPENED.DIR"), "[VIEW]\r\nA.PDF=0\r\nC.PDF=1\r\nD.PDF=1\r\n") << "a key, once there, stays";
    std::vector<std::size_t> many(12, 0);
    opening.openRows(many);
    EXPECT_FALSE(printing.printRows(many));
    EXPECT_THAT(boxes.Shown, ElementsAre("Open 12 clippings?", "Print 12 clippings?"));
    EXPECT_THAT(asked(), IsEmpty());
    std::filesystem::remove(folder.path() / "clips/07032004/OPENED.DIR");
    std::filesystem::create_directory(folder.path() / "clips/07032004/OPENED.DIR");
    opening.markRows(rows, true);
    EXPECT_EQ(view.Message, "The marks could not be written. The log says why.");
}

TEST_F(ClippingCommandsTest, savesCopiesAndReplacesNothingWithoutAQuestion) {
    const std::string path = browser.rows()[0].path(), elsewhere = (folder.path() / "\xC3\xA9").string();
    const Texts several{path, browser.rows()[1].path(), path};
    std::filesystem::create_directory(elsewhere);
    const auto saved = [&](const char* name) { return folder.get(std::string("\xC3\xA9/") + name); };
    folder.put("\xC3\xA9/.older.part", "of another program");
    std::filesystem::last_write_time(elsewhere + "/.older.part",
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours{99});
    saving.saveAll(several, elsewhere);
    EXPECT_EQ(saved("A.PDF") + saved("B.PDF") + saved("A (2).PDF"), "xxx");
    EXPECT_EQ(statuses.back(), "3 clippings saved.");
    EXPECT_EQ(saved(".older.part"), "of another program") << "nothing but the copies is touched";
    folder.put("\xC3\xA9/A.PDF", "mine");
    std::filesystem::remove(folder.path() / "\xC3\xA9/B.PDF");
    saving.saveAll(several, elsewhere);
    EXPECT_THAT(boxes.Shown, ElementsAre("2 of these files are there already. Replace them?"));
    EXPECT_EQ(boxes.LastButtons, Buttons::NoYes);
    EXPECT_EQ(saved("A.PDF") + saved("B.PDF"), "minex");
    EXPECT_EQ(statuses.back(), "1 clipping saved.");
    saving.saveAs(path, elsewhere + "/none/A.PDF");
    EXPECT_THAT(view.Message, StartsWith("1 clipping could not be saved. "));
}

TEST_F(ClippingCommandsTest, readsThePagesWhileSomebodyWantsThem) {
    const auto pages = [this] {
        wait(1);
        std::string text;
        for (const ClippingRow& row : browser.rows())
            text += row.File->FileName.substr(0, 1) + row.Page + " ";
        return text;
    };
    put("A.MT", "TITLE: x\r\nPAGE: 12\r\n");
    put("B.MT", "page: 2");
    put("D.MT", "");
    PageReader reader{{browser, files, loop, clock, log}};
    EXPECT_EQ(pages(), "A B C D ");
    reader.want(true);
    EXPECT_EQ(pages(), "A12 B2 C D ");
    EXPECT_FALSE(loop.untilNextTimer()) << "nothing goes on when all is known";
    browser.sortBy(GridColumn::Page);
    EXPECT_EQ(pages(), "C D B2 A12 ");
    put("C.MT", "PAGE: 3\r\n");
    put("A.MT", "PAGE: 1\r\n");
    browser.PopulateLocalFilesGrid();
    EXPECT_EQ(pages(), "D A1 B2 C3 ") << "another edition";
    reader.want(false);
    browser.PopulateLocalFilesGrid();
    EXPECT_EQ(pages(), "A B C D ");
}

TEST_F(ClippingCommandsTest, tellsWhenWhatWasOpenedOrPrintedCannotBeMarked) {
    std::filesystem::create_directory(folder.path() / "clips/07032004/OPENED.DIR");
    std::filesystem::create_directory(folder.path() / "clips/07032004/PRINTED.DIR");
    EXPECT_EQ(opening.open(browser.rows()[0].path()), ClippingOpening::Outcome::Unmarked);
    EXPECT_EQ(view.Message, "Opened, but it could not be marked as opened. The log says why.");
    EXPECT_THAT(logged(), testing::HasSubstr(" in IniWriteString()\n"));
    const std::string notMarked = "Printed, but it could not be marked as printed. The log says why.";
    EXPECT_FALSE(printing.mnuPrintSel_Click(1));
    EXPECT_EQ(view.Message, notMarked);
    view.Message.clear();
    boxes.Answers = {Answer::Yes};
    EXPECT_FALSE(printing.mnuPrintAll_Click());
    EXPECT_EQ(view.Message, notMarked);
    EXPECT_EQ(marks(), "----");
}

TEST_F(ClippingCommandsTest, printsAllWithPausesAfterAQuestionAndMarksThem) {
    printing.mnuPrintAll_Click();
    EXPECT_THAT(asked(), IsEmpty());
    EXPECT_THAT(boxes.Shown, ElementsAre("Print All: Do you want to print all documents for selected date?"));
    boxes.Answers = {Answer::Yes, Answer::Yes};
    boxes.OnQuestion = [&] { printing.mnuPrintAll_Click(); };
    const SteadyTime begun = clock.Steady();
    printing.mnuPrintAll_Click();
    EXPECT_EQ(asked().size(), 4U) << "a second batch cannot begin while one is under way";
    EXPECT_EQ(clock.Steady() - begun, std::chrono::seconds{12});
    EXPECT_EQ(marks(), "PPPP");
    EXPECT_THAT(statuses, ElementsAre("Printing 1/4 first", "Printing 2/4 second", "Printing 3/4 third",
                                      "Printing 4/4 fourth", ""));
    statuses.clear();
    shell.Result = 2;
    boxes.Answers = {Answer::Yes};
    printing.mnuPrintAll_Click();
    EXPECT_EQ(clock.Steady() - begun, std::chrono::seconds{12}) << "what did not print is passed without a pause";
    EXPECT_THAT(statuses, ElementsAre(""));
    shell.Reason = "There is no printer.";
    for (const bool again : {false, true}) {  // a batch tells it once, and so does the next one
        boxes.Shown.clear();
        boxes.Answers = {Answer::Yes};
        printing.mnuPrintAll_Click();
        EXPECT_THAT(boxes.Shown, ElementsAre(testing::_, testing::HasSubstr("/p /h"))) << again;
        EXPECT_THAT(boxes.Shown.back(), testing::EndsWith("'.\r\nThere is no printer."));
    }
    asked();
    shell.Result = 28;  // no answer, for which each document would wait
    boxes.Answers = {Answer::Yes};
    printing.mnuPrintAll_Click();
    EXPECT_THAT(asked(), ElementsAre("A.PDF"));
}

TEST_F(ClippingCommandsTest, aBatchStopsBeforeTheNextDocument) {
    PrintCommands stopped{{browser, store, articles, loop, boxes, printers, log, setup, english},
                          [&](std::string_view) { stopped.stop(); },
                          message};
    boxes.Answers = {Answer::Yes};
    EXPECT_FALSE(stopped.mnuPrintAll_Click());
    EXPECT_THAT(asked(), ElementsAre("A.PDF"));
    frmPrint dialog = stopped.mnuPrintByCategory_Click();
    dialog.cmdAddAll_Click();
    EXPECT_FALSE(dialog.cmdPrint_Click([&](std::string_view) { dialog.cmdStop_Click(); }));
    EXPECT_THAT(asked(), ElementsAre("B.PDF"));
}

TEST_F(ClippingCommandsTest, printsTheSelectedRowAlone) {
    printing.mnuPrintSel_Click(2);
    EXPECT_THAT(asked(), ElementsAre("C.PDF"));
    EXPECT_EQ(marks(), "--P-");
}

TEST_F(ClippingCommandsTest, printsWholeCategoriesWithoutMarkingThem) {
    frmPrint dialog = printing.mnuPrintByCategory_Click();
    EXPECT_THAT(dialog.lstAllCategories(), ElementsAre("Politics", "POLITICS", "Politics,Economy"));
    dialog.cmdPrint_Click(status);
    EXPECT_THAT(boxes.Shown, ElementsAre("Print: No categories selected. Please selected categories to print."));
    dialog.cmdAddAll_Click();
    dialog.cmdRemove_Click(1);
    dialog.cmdAdd_Click(7);
    EXPECT_THAT(dialog.lstPrintCategories(), ElementsAre("Politics", "Politics,Economy"));
    dialog.cmdRemoveAll_Click();
    dialog.cmdAdd_Click(1);
    EXPECT_THAT(dialog.lstAllCategories(), ElementsAre("POLITICS", "Politics,Economy"));
    EXPECT_THAT(dialog.lstPrintCategories(), ElementsAre("Politics"));
    dialog.cmdPrint_Click(status);
    EXPECT_THAT(asked(), ElementsAre("B.PDF")) << "categories are compared whole, without regard to case";
    EXPECT_THAT(statuses, ElementsAre("Printing 1/1 B.PDF", ""));
    EXPECT_EQ(marks(), "----");
    EXPECT_FALSE(printing.isPrinting());
}

TEST_F(ClippingCommandsTest, printsForEachOfACombinationOfCategoriesWhenTheyAreSplit) {
    frmPrint dialog = printing.mnuPrintByCategory_Click();
    EXPECT_EQ(dialog.text("politics"), "politics (1)") << "as many as are printed: the blanks of the first one count";
    dialog.splitCategories(true);
    EXPECT_THAT(dialog.lstAllCategories(), ElementsAre("Economy", "Politics"));
    EXPECT_EQ(dialog.text("Politics"), "Politics (3)");
    dialog.cmdAdd_Click(1);
    EXPECT_EQ(dialog.outcome(), "Prints 3 clippings.");
    dialog.cmdPrint_Click(status);
    EXPECT_THAT(asked(), ElementsAre("A.PDF", "B.PDF", "C.PDF"));
    dialog.splitCategories(false);
    EXPECT_EQ(dialog.outcome(), "Prints 0 clippings.");
}

TEST_F(ClippingCommandsTest, tellsHowTheDefaultPrinterIsSetUpAndOpensItsDialog) {
    frmPrint dialog = printing.mnuPrintByCategory_Click();
    dialog.cmdPrinterSettings_Click();
    printers.Default = {"Gutenberg", 9, 2, -3, 50};
    dialog.cmdPrinterSettings_Click();
    printers.Trouble = "no browser";
    dialog.cmdPrinterSettings_Click();
    const std::string told = "Gutenberg,PaperSize:9,Orientation:2,PrintQuality:-3,Zoom:50";
    EXPECT_THAT(boxes.Shown, ElementsAre("no printer", told, told, "no browser"));
    EXPECT_EQ(printers.Shown, "Gutenberg Gutenberg ");
}

TEST_F(ClippingCommandsTest, filtersByWhatTheDayHas) {
    const std::vector<std::pair<ClippingFilter, std::string>> cases{{{{"politics"}}, "ABC"},
                                                                    {{{"Economy"}}, "C"},
                                                                    {{{}, {"COMMENT"}}, "B"},
                                                                    {{{"Politics"}, {"Report", "x"}}, "C"},
                                                                    {{{"Sport"}}, ""},
                                                                    {{{}, {}, {"n"}}, "ABCD"},
                                                                    {{{""}}, "D"},
                                                                    {{{"Economy", ""}, {}, {"N"}}, "CD"},
                                                                    {{{}, {}, {""}}, ""},
                                                                    {{}, "ABCD"}};
    for (const auto& [chosen, expected] : cases) {
        browser.setFilter(chosen);
        frmFilter dialog(browser);
        EXPECT_EQ(dialog.passing(), expected.size());
        dialog.cmdOk_Click();
        std::string listed;
        for (const ClippingRow& row : browser.rows())
            listed += row.File->FileName.front();
        EXPECT_EQ(listed, expected) << chosen.text(english);
        EXPECT_THAT(view.Filter, testing::StrCaseEq(chosen.text(english)));
        EXPECT_THAT(view.Count, StartsWith(std::to_string(expected.size()) + (expected == "ABCD" ? " Clip" : " of 4")));
    }
}

TEST_F(ClippingCommandsTest, theFilterOffersWhatTheDayHasWithCounts) {
    const auto texts = [this](const FilterChoice& list) {
        std::string all;
        for (std::size_t entry = 0; entry < list.size(); ++entry)
            all += (list.isTicked(entry) ? "*" : "") + list.text(entry, english) + ";";
        return all;
    };
    put("ALLFILES.DIR", "A.PDF||N||||Sport,sport||\r\nB.PDF||||||SPORT, Art||\r\n\r\n");
    browser.PopulateLocalFilesGrid();
    browser.setFilter({{"art", "Music"}});
    frmFilter dialog(browser);
    EXPECT_EQ(texts(dialog.lstCategories), "Any (4);*Art (1);*Music (0);Sport (2);None (2);");
    EXPECT_EQ(texts(dialog.lstNewspapers), "*Any (4);N (1);None (3);");
    dialog.lstCategories.tick(0, true);
    dialog.lstNewspapers.tick(0, false);
    dialog.lstNewspapers.tick(2, true);
    EXPECT_EQ(texts(dialog.lstCategories), "*Any (4);Art (1);Music (0);Sport (2);None (2);");
    dialog.cmdOk_Click();
    EXPECT_EQ(view.Filter, "no newspaper");
    dialog.cmdClear_Click();
    EXPECT_EQ(texts(dialog.lstNewspapers), "*Any (4);N (1);None (3);");
}

TEST_F(ClippingCommandsTest, autoViewOpensOneAfterAnotherUntilTheEndOrAFailure) {
    autoView.start(1);
    EXPECT_THAT(asked(), ElementsAre("B.PDF"));
    EXPECT_EQ(autoView.slide()->Title + std::to_string(autoView.number()), "second2");
    wait(4);
    EXPECT_THAT(asked(), IsEmpty());
    autoView.setDelay(2);
    wait(2);
    EXPECT_THAT(asked(), ElementsAre("C.PDF"));
    wait(2);
    EXPECT_EQ(marks(), "-OOO");
    EXPECT_FALSE(autoView.isRunning());
    autoView.start(0);
    autoView.stop();
    asked();
    wait(60);
    EXPECT_THAT(asked(), IsEmpty());
    shell.Result = 31;
    autoView.start(0);
    EXPECT_FALSE(autoView.isRunning());
    EXPECT_FALSE(loop.untilNextTimer());
    setup.AutoPlayDelay = 0;
    EXPECT_EQ(frmAutoView(browser, opening, loop, setup).delay(), 1);
}

TEST_F(ClippingCommandsTest, autoViewIsLedByHandGoesOnWhereItStoppedAndFollowsTheSetting) {
    autoView.start(0);
    wait(3);
    autoView.showNext();
    wait(3);
    EXPECT_THAT(asked(), ElementsAre("A.PDF", "B.PDF")) << "the pause begins anew";
    autoView.stop();
    autoView.showPrevious();
    autoView.showPrevious();
    EXPECT_FALSE(autoView.isRunning());
    autoView.start(0);
    EXPECT_THAT(asked(), ElementsAre("A.PDF", "B.PDF")) << "what was shown last is not shown again";
    autoView.setDelay(9);
    setup.AutoPlayDelay = 1;
    autoView.followSettings();
    wait(1);
    autoView.stop();
    autoView.start(3);
    autoView.start(3);
    autoView.start(2);
    EXPECT_THAT(asked(), ElementsAre("C.PDF", "D.PDF", "A.PDF", "C.PDF"));
    EXPECT_EQ(autoView.delay(), 1);
}

TEST_F(ClippingCommandsTest, walksThroughTheDays) {
    for (const char* name : {"08032004", "06032004"})
        std::filesystem::create_directories(folder.path() / "clips" / name);
    browser.PopulateDateCombo();
    days.chooseNewer();
    EXPECT_EQ(browser.chosenDay(), march8);
    days.chooseNewer();
    EXPECT_EQ(browser.chosenDay(), march8);
    days.chooseOlder();
    EXPECT_EQ(browser.chosenDay(), march7);
    days.chooseFirst(Date{2004, 3, 6});
    EXPECT_EQ(view.Days, "08/03/2004 07/03/2004 *06/03/2004 ");
    std::filesystem::remove_all(folder.path() / "clips");
    days.reload();
    EXPECT_THAT((Texts{view.Days, view.Rows}), Each(""));
}

TEST_F(ClippingCommandsTest, deletesDaysAfterAQuestionThatSaysWhatGoes) {
    const Date march9{2004, 3, 9};
    for (const char* name : {"09032004/A.PDF", "08032004/A.PDF", "08032004/B.PDF", "08032004/B.TXT"})
        folder.put(std::string("clips/") + name, "x");
    browser.PopulateDateCombo();
    const auto ask = [&](const std::vector<Date>& which, Answer answer, std::function<void()> meanwhile) {
        boxes.Shown.clear();
        boxes.Answers = {answer};
        boxes.OnQuestion = std::move(meanwhile);
        days.mnuDeleteDay_Click(which);
        busy = false;
        return boxes.shown() + view.Days;
    };
    const std::string all = "09/03/2004 08/03/2004 *07/03/2004 ", one = "Delete Day: Delete 07/03/2004 with ",
                      kept = "A download has been at work meanwhile. Not deleted: ";
    EXPECT_EQ(ask({}, Answer::Yes, nullptr), all);
    EXPECT_EQ(ask({march7}, Answer::No, nullptr), one + "4 clippings?|" + all);
    EXPECT_EQ(boxes.LastButtons, Buttons::NoYes);
    EXPECT_EQ(ask({march7}, Answer::Yes, [&] { busy = true; }), one + "4 clippings?|" + kept + "07/03/2004|" + all);
    EXPECT_EQ(ask({march8, march7}, Answer::Yes, [&] { put("E.PDF", "x"); }),
              "Delete Day: Delete 2 days with 6 clippings?|" + kept + "07/03/2004|09/03/2004 *07/03/2004 ");
    std::filesystem::create_directory(folder.path() / "clips/09032004/in use");
    EXPECT_THAT(ask({march9, march7}, Answer::Yes, nullptr),
                testing::AllOf(StartsWith("Delete Day: Delete 2 days with 6 clippings?|Sharing Violation: "),
                               testing::EndsWith("|09/03/2004 *07/03/2004 ")))
        << "who does not try again wants no other day to go either";
    EXPECT_EQ(ask({march7}, Answer::Yes, nullptr), one + "5 clippings?|*09/03/2004 ");
    EXPECT_FALSE(folder.has("clips/07032004"));
}

}  // namespace
}  // namespace vell::test
