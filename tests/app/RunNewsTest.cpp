// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "app/news/RunNotice.h"
#include "app/news/runTexts.h"
#include "tests/support/ProgramRig.h"

namespace vell::test {

class RunNewsTest : public testing::Test, protected ProgramRig {
  protected:
    // 06:30 on Sunday, 07/03/2004.
    void runBySchedule() {
        clock.setNow({{2004, 3, 7}, 6, 29, 0});
        folder.put("vell.ini", folder.get("vell.ini") + "[Schedule]\r\nSchedule1=Sun 06:30\r\n");
        ASSERT_TRUE(program.Form_Load(frmMain::Start::Window));
        EXPECT_EQ(view.NextRun, "Next: Sun 06:30");
        pass(std::chrono::minutes{1});
    }
    void pass(std::chrono::seconds time) {
        clock.advance(time);
        loop.DoEvents();
    }
};

TEST_F(RunNewsTest, aScheduledRunIsToldToWhoeverLooksAtSomethingElse) {
    service.serve(5);
    service.Answers[ServicePeer::pathOf("N220040307.MT")] = HttpPeer::status("404 No");
    view.IsLookedAt = false;
    runBySchedule();
    EXPECT_EQ(view.Notice,
              "4 new clippings|1 file failed. The service does not have it.\nTITLE 1\nTITLE 3\nTITLE 4\n...|");
    EXPECT_EQ(view.LastRun, "Last: Sun 06:32, 4 new, 1 file failed") << "with the pauses of its retries";
    EXPECT_EQ(program.news().goToNews(), 0U);
    EXPECT_EQ(view.Count, "5 Clippings, 5 unread, 4 new");
}

TEST_F(RunNewsTest, nobodyIsToldWhoSeesItOrWhenThereIsNothing) {
    service.serve(1);
    runBySchedule();
    EXPECT_EQ(view.Notice, "");
    EXPECT_EQ(view.LastRun, "Last: Sun 06:30, 1 new");
    view.IsLookedAt = false;
    pass(std::chrono::seconds{10});
    EXPECT_EQ(view.LastRun, "Last: Sun 06:30, nothing new");
    EXPECT_EQ(view.Count, "1 Clippings, 1 unread, 1 new");
    EXPECT_EQ(view.Notice, "");
    service.Answers[ServicePeer::listScript] = HttpPeer::status("503 No", "X: y\r\n");
    pass(std::chrono::seconds{10});
    EXPECT_EQ(view.Notice, "The download failed|Quillon Service not accessible.|");
    EXPECT_EQ(view.LastRun, "Last: Sun 06:30, failed");
}

TEST_F(RunNewsTest, theNextStartRemembersTheLastRun) {
    clock.setNow({{2004, 3, 7}, 6, 30, 0});
    folder.put("lastrun.txt", "06/03/2004 07:30:59 4 0 whole\r\n");
    ASSERT_TRUE(program.Form_Load(frmMain::Start::Window));
    EXPECT_EQ(view.LastRun, "Last: Sat 07:30, 4 new");
    for (const auto& [line, text] : std::initializer_list<std::pair<const char*, const char*>>{
             {"29/02/2004 23:05:00 0 1 failed\r\n", "Last: 29/02/2004 23:05, 1 file failed, failed"},
             {"06/03/2004 07:30:59 0 0 stopped", "Last: Sat 07:30, stopped"},
             {"06/03/2004 07:30:59 4 0 who", ""},
             {"06/03/2004 7:30 4 0 whole", ""},
             {"31/02/2004 07:30:59 4 0 whole", ""},
             {"06/03/2004 07:30:59 -4 0 whole", ""},
             {"", ""}}) {
        view.LastRun.clear();
        folder.put("lastrun.txt", line);
        program.news().showLastRun();
        EXPECT_EQ(view.LastRun, text) << line;
    }
    program.downloads().mnuForceDownload_Click();
    EXPECT_THAT(folder.get("lastrun.txt"), testing::MatchesRegex("07/03/2004 06:30:.. 3 0 whole\r\n"));
    files.Trouble = "lastrun.txt";
    program.downloads().mnuForceDownload_Click();
    EXPECT_EQ(view.LastRun, "Last: Sun 06:30, nothing new");
    EXPECT_TRUE(program.downloads().outcome().isGood());
}

TEST_F(RunNewsTest, aRangeIsSummedUp) {
    RunSummary summary;
    const auto file = [](const char* name) { return FailedFile{{}, name, "", {}}; };
    summary.Days = {{.Day = {2026, 11, 21}, .Listed = 14},
                    {.Day = {2026, 11, 22}},
                    {.Day = {2026, 11, 23}, .Listed = 13, .FailedFiles = {file("A.PDF"), file("A.MT")}},
                    {.Day = {2026, 11, 24}, .BrokenOff = Failure{}}};
    EXPECT_EQ(rangeText(summary, english),
              "26 clippings in 2 days; none on 22/11/2026; failed: 24/11/2026; 2 files failed");
    summary.Days.resize(2);
    EXPECT_EQ(rangeText(summary, english), "14 clippings in 1 day; none on 22/11/2026");
    summary.Days.assign(9, {.Day = {2026, 11, 22}});
    EXPECT_THAT(rangeText(summary, english), testing::EndsWith("22/11/2026, 22/11/2026 ..."));
}

}  // namespace vell::test
