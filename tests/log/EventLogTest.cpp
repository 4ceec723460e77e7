// SPDX-License-Identifier: MIT
#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/SettingsRig.h"

namespace vell::test {

class EventLogTest : public testing::Test {
  protected:
    [[nodiscard]] std::string program(const std::string& name = "") const { return folder_.text() + "\\" + name; }

    TempFolder folder_;
    DrivenClock clock_{{{2004, 3, 7}, 6, 5, 9}};
    PosixFiles files_;
};

TEST_F(EventLogTest, writesStampedLinesBetweenStartAndStopForItsOwnerAlone) {
    EventLog log(clock_, files_);
    log.WriteLog("before");
    log.LogError({53, "File not found: x", "Vell", 2}, "before()");
    EXPECT_TRUE(std::filesystem::is_empty(folder_.path()));
    log.Start(folder_.text(), program("vell.log"));
    log.WriteLog("\t\tEnded \xC1");
    log.LogError({53, "File not found: x", "Vell", 2}, "OpenUrl()");
    log.LogError({6, "Overflow"}, "");
    log.Stop();
    log.WriteLog("after");
    EXPECT_EQ(folder_.get("vell.log"),
              "07/03/2004 06:05:09,   ==========  Program Started ===============\r\n"
              "07/03/2004 06:05:09,   \t\tEnded \xC1\r\n"
              "Error=53, Source=Vell, Description=File not found: x, LastDllError=2, HelpFile=, HelpContext=0 in "
              "OpenUrl()\r\n"
              "Error=6, Source=Vell, Description=Overflow, LastDllError=0, HelpFile=, HelpContext=0\r\n"
              "07/03/2004 06:05:09,   ==========  Program Ended ===============\r\n");
    EXPECT_EQ(std::filesystem::status(folder_.path() / "vell.log").permissions(), std::filesystem::perms{0600});
}

TEST_F(EventLogTest, survivesEverythingThatHappensToItsFile) {
    for (const auto& folder : {folder_.text(), program()}) {
        for (const auto& unusable : {std::string(), program("missing\\vell.log")}) {
            clsLog log(files_, folder);
            log.setFileName(unusable);
            log.log("line");
            EXPECT_EQ(folder_.get("Log.txt"), "line\r\n");
            EXPECT_EQ(log.FileName(), program("Log.txt"));
            log.Reset();
            EXPECT_FALSE(folder_.has("Log.txt"));
        }
    }
    clsLog log(files_, folder_.text());
    log.setFileName(program("vell.log"));
    EXPECT_EQ(log.FileName(), program("vell.log"));
    EXPECT_TRUE(folder_.has("vell.log"));  // asking for the name makes the file
    std::filesystem::remove(folder_.path() / "vell.log");
    log.LogEvent("a", 1);
    log.LogEvent("b", 2);
    log.LogEvent("c", 3);
    EXPECT_EQ(folder_.get("vell.log"), "Error: a\r\nWarning: b\r\nInformation: c\r\n");
    std::filesystem::remove_all(folder_.path());
    log.log("lost");
    log.Reset();
    EXPECT_FALSE(std::filesystem::exists(folder_.path()));
}

}  // namespace vell::test
