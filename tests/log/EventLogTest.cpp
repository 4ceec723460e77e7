// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "log/logLine.h"
#include "tests/support/SettingsRig.h"
#include "tests/support/system.h"

namespace vell::test {

TEST(EventLogTest, writesStampedLinesBetweenStartAndStopForItsOwnerAlone) {
    const TempFolder folder;
    DrivenClock clock({{2004, 3, 7}, 6, 5, 9});
    SystemFiles files;
    EventLog log(clock, files);
    log.WriteLog("before");
    log.LogError({6, "Overflow"}, "before()");
    EXPECT_FALSE(folder.has("vell.log"));
    log.Start(folder.text(), folder.text() + "\\vell.log");
    log.LogError({53, "File not found: x", "Vell", 2}, "OpenUrl()");
    log.LogError({6, "Overflow"}, "");
    log.Stop();
    log.WriteLog("after");
    EXPECT_EQ(folder.get("vell.log"),
              "07/03/2004 06:05:09,   ==========  Program Started ===============\r\n"
              "Error=53, Source=Vell, Description=File not found: x, LastDllError=2, HelpFile=, HelpContext=0 in "
              "OpenUrl()\r\nError=6, Source=Vell, Description=Overflow, LastDllError=0, HelpFile=, HelpContext=0\r\n"
              "07/03/2004 06:05:09,   ==========  Program Ended ===============\r\n");
    EXPECT_TRUE(isPrivate(folder.path() / "vell.log"));
}

TEST(EventLogTest, survivesEverythingThatHappensToItsFile) {
    const TempFolder folder;
    SystemFiles files;
    const std::string missing = folder.text() + "\\missing\\vell.log";
    for (const auto& [programFolder, wanted] : {std::pair{folder.text(), missing}, {folder.text() + "\\", ""}}) {
        clsLog log(files, programFolder);
        log.setFileName(wanted);
        EXPECT_EQ(log.FileName(), folder.text() + "\\Log.txt");
        log.LogEvent("a", 1);
        log.LogEvent("b", 2);
        log.LogEvent("c", 3);
        EXPECT_TRUE(isPrivate(folder.path() / "Log.txt"));
        EXPECT_EQ(folder.get("Log.txt"), "Error: a\r\nWarning: b\r\nInformation: c\r\n");
        log.Reset();
        EXPECT_FALSE(folder.has("Log.txt"));
    }
    clsLog log(files, folder.text());
    log.setFileName(folder.text() + "\\vell.log");
    EXPECT_EQ(log.FileName(), folder.text() + "\\vell.log");
    EXPECT_TRUE(folder.has("vell.log"));  // asking for the name makes the file
    std::filesystem::remove_all(folder.path());
    std::vector<std::string> told;
    log.onFailure([&](std::string_view text) { told.emplace_back(text); });
    log.log("lost");
    log.log("lost");
    log.Reset();
    EXPECT_FALSE(std::filesystem::exists(folder.path()));
    EXPECT_THAT(told, testing::ElementsAre(testing::HasSubstr(folder.text() + "\\Log.txt"))) << "once";
}

TEST(EventLogTest, letsNobodyElseWriteItsLinesOrSteerTheTerminal) {
    const std::string stamp = "07/03/2004 06:05:09,   ";
    EXPECT_EQ(logLine(stamp + "220 a\tb\x1b[2J\x07\x7F\xE1\r\n" + stamp + "forged\n" + "07/03/2004 06:05"),
              stamp + "220 a\tb.[2J..\xE1\r\n\t\t" + stamp + "forged\n07/03/2004 06:05");
    EXPECT_EQ(logLine(std::string(70000, 'x')), std::string(65536, 'x') + " ... (4464 bytes more)");
}

}  // namespace vell::test
