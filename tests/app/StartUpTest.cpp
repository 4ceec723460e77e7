// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/support/ProgramRig.h"

namespace vell::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class StartUpTest : public testing::Test, protected ProgramRig {
  protected:
    StartUpTest() { view.Place.reset(); }

    [[nodiscard]] std::string ini() const { return folder.get("vell.ini"); }
    void putIni(const std::string& lines) {
        folder.put("vell.ini",
                   "[General]\r\nDebug=1\r\n[Download]\r\nLocalDir=" + folder.text() + "/clips\r\n" + lines);
    }
    bool load() { return program.Form_Load(frmMain::Start::Window); }
};

TEST_F(StartUpTest, showsTodayOrElseTheNewestDay) {
    for (const char* file : {"clips/06032004/A.PDF", "clips/05032004/B.PDF"}) {
        std::filesystem::create_directories((folder.path() / file).parent_path());
        folder.put(file, "x");
    }
    ASSERT_TRUE(load());
    EXPECT_EQ(view.Days, "*06/03/2004 05/03/2004 ");
    EXPECT_EQ(view.Rows, "A.PDF,,;");
    EXPECT_EQ(view.DayTexts[(Date{2004, 3, 5})], "Fri 05/03/2004") << "the start reads the day that is shown only";
    clock.advance(std::chrono::milliseconds{500});
    loop.DoEvents();
    EXPECT_EQ(view.DayTexts[(Date{2004, 3, 5})], "Fri 05/03/2004 (1, 1 unread)");
    EXPECT_EQ(loop.untilNextTimer(), std::chrono::milliseconds{9500}) << "the schedule ticks, and nothing else";
    EXPECT_EQ(view.Range, "07/03/2004-07/03/2004");
    EXPECT_EQ(view.Advertisement, folder.text() + "\\ADVERTISMENT.JPG");
    std::filesystem::create_directories(folder.path() / "clips/07032004");
    ASSERT_TRUE(load());
    EXPECT_THAT(view.Days, testing::StartsWith("*07/03/2004"));
    program.Form_Unload();
    EXPECT_THAT(logged(), testing::StartsWith("==========  Program Started ==============="));
    EXPECT_THAT(logged(), HasSubstr("==========  Program Ended ==============="));
}

TEST_F(StartUpTest, refusesASecondInstanceAndTouchesNothing) {
    anotherRuns = true;
    const std::string before = ini();
    EXPECT_FALSE(load());
    view.Place = WindowPlace{1, 1, 1, 1};
    program.Form_Unload();
    EXPECT_THAT(boxes.Shown, ElementsAre("Program is already running", "raised"));
    EXPECT_FALSE(program.Form_Load(frmMain::Start::Alone));
    EXPECT_EQ(boxes.Shown.back(), "Program is already running") << "a terminal raises no window";
    EXPECT_EQ(ini(), before);
    EXPECT_FALSE(folder.has("vell.log"));
    EXPECT_TRUE(program.Form_Load(frmMain::Start::Beside));
}

TEST_F(StartUpTest, warnsOfAMissingSettingsFileWhereNoWindowLeadsToSetup) {
    EXPECT_TRUE(load());
    EXPECT_FALSE(program.isFirstStart());
    std::filesystem::remove(folder.path() / "vell.ini");
    EXPECT_TRUE(load());
    EXPECT_TRUE(program.isFirstStart());
    EXPECT_THAT(boxes.Shown, ElementsAre());
    EXPECT_TRUE(program.Form_Load(frmMain::Start::Alone));
    EXPECT_THAT(boxes.Shown,
                ElementsAre("Warning. INI file 'vell.ini' not found.\r\nSETUP and SCHEDULE parameters must "
                            "be set again."));
}

TEST_F(StartUpTest, aPendingUpdateStopsTheStartBeforeSettingsAndLog) {
    folder.put("vell.ini", "[General]\r\nDebug=1\r\nUpdate=1\r\n");
    EXPECT_FALSE(load());
    EXPECT_FALSE(program.isSecondInstance());
    program.Form_Unload();
    EXPECT_THAT(boxes.Shown, ElementsAre("An update file is ready to be installed...",
                                         "The newer version could not be installed. The program stays as it is. The "
                                         "file is not the one that its maker has signed."));
    EXPECT_THAT(ini(), HasSubstr("Update=0"));
    EXPECT_FALSE(folder.has("vell.log"));
    EXPECT_FALSE(view.Place);
}

TEST_F(StartUpTest, tellsOnceThatTheRunningVersionWasInstalled) {
    putIni("[Update]\r\nUpdateVersion=2.1.37\r\n");
    EXPECT_TRUE(load());
    EXPECT_TRUE(load());
    EXPECT_THAT(boxes.Shown, ElementsAre("Installation completed succesfully"));
    EXPECT_THAT(ini(), HasSubstr("UpdateVersion=\r\n"));
    putIni("[Update]\r\nUpdateVersion=2.1.3\r\n");
    EXPECT_TRUE(load());
    EXPECT_EQ(boxes.Shown.size(), 1U);
}

TEST_F(StartUpTest, placesTheWindowWithinItsBounds) {
    const std::vector<std::pair<std::string, WindowPlace>> cases{
        {"", {1000, 1500, 15600, 10350}},
        {"[Position]\r\nposTop=-70\r\nposLeft=-51\r\nposWidth=-1\r\nposHeight=-1\r\n", {0, 0, 15600, 10350}},
        {"[Position]\r\nposTop=-50\r\nposLeft=7\r\nposWidth=0\r\nposHeight=300\r\n", {-50, 7, 0, 300}},
        {"[Position]\r\nposTop=x\r\nposLeft=99999999999\r\nposWidth=1e300\r\nposHeight=-1e300\r\n",
         {0, 1000000, 1000000, 10350}}};
    for (const auto& [lines, place] : cases) {
        putIni(lines);
        EXPECT_TRUE(load());
        EXPECT_EQ(view.Place, place) << lines;
    }
}

TEST_F(StartUpTest, keepsThePlaceUnlessThereIsNoneWorthKeeping) {
    const WindowPlace place{-50, 20, 3000, 4000};
    ASSERT_TRUE(load());
    view.Place = place;
    program.Form_Unload();
    ASSERT_TRUE(load());
    EXPECT_EQ(view.Place, place);
    view.Place.reset();
    program.Form_Unload();
    EXPECT_THAT(ini(), HasSubstr("posTop=-50"));
    view.Place = WindowPlace{-51, 30, -1, 5};
    program.Form_Unload();
    ASSERT_TRUE(load());
    EXPECT_EQ(view.Place, (WindowPlace{-50, 30, 3000, 5}));
}

TEST_F(StartUpTest, leavesADialUpConnectionOnlyWithTheUsersWordAndTellsWhenItStays) {
    putIni("CloseConnection=1\r\n");
    connection.flags = ConnectionApi::Modem | ConnectionApi::Configured;
    const std::string question = "Do you want to close the dial-up connection?";
    const std::string failed = "Error! Could not close dial-up connection";
    for (const auto start : {frmMain::Start::Window, frmMain::Start::Alone, frmMain::Start::AloneOffline}) {
        const bool asks = start != frmMain::Start::AloneOffline;
        boxes.Shown.clear();
        boxes.Answers = {Answer::Yes};
        ASSERT_TRUE(program.Form_Load(start));
        view.Place = WindowPlace{1, 2, 3, 4};
        program.Form_Unload();
        EXPECT_THAT(ini(), HasSubstr("posTop=1"));
        EXPECT_EQ(boxes.Shown, asks ? (std::vector<std::string>{question, failed}) : std::vector<std::string>{});
        EXPECT_EQ(logHas(failed + "\n==========  Program Ended ===============\n"), asks);
        std::filesystem::remove(folder.path() / "vell.log");
    }
}

}  // namespace
}  // namespace vell::test
