// SPDX-License-Identifier: MIT
#include <map>
#include <string>
#include <tuple>

#include <gmock/gmock.h>

#include "app/exitCodes.h"
#include "console/CommandLine.h"
#include "console/Commands.h"
#include "console/ConsoleBoxes.h"
#include "console/ConsoleView.h"
#include "console/Screen.h"
#include "tests/support/FakeTerminal.h"
#include "tests/support/ProgramRig.h"

namespace vell::test {

using testing::AnyOf, testing::HasSubstr, testing::ResultOf;

struct CommandUnderFaults {
    std::string Words;             // with a comma between them
    std::string File, From, Into;  // what it does: this text of the file becomes that one; "" for the day's end
};

// Commands that keep something, with a disk that fails at every place.
class DiskFaultsTest : public testing::TestWithParam<std::tuple<CommandUnderFaults, FaultyFiles::Fault>>,
                       protected ProgramRig {
  protected:
    int run(const std::string& words) {
        const auto pieces = Split(words, ",");
        int code = exit_code::Usage;
        const auto line = parseCommandLine({pieces.begin(), pieces.end()}, terminal, code);
        return line ? commands.run(*line) : code;
    }
    void begin() {
        files.failAt(0);
        boxes.Answers = {Answer::Yes};
        std::filesystem::remove(folder.path() / "vell.log");
        for (const auto& [name, content] : before)
            folder.put(name, content);
    }

    const std::map<std::string, std::string> before{
        {"vell.ini",
         "; mine\r\n[Host]\r\nUid=ann\r\nPort=21\r\nRetryOnFailure=3\r\nRetryDelay=5\r\nTimeOut=20\r\nOther=1\r\n"
         "[General]\r\nDebug=1\r\nAutoPlayDelay=5\r\nPrintAllDelay=5\r\n[Download]\r\nAutoUpdateCheck=0\r\nLocalDir=" +
             folder.text() + "/clips\r\n[Schedule]\r\nSchedule1=Mon 07:30\r\nSchedule2=Tue 08:30\r\n"},
        {"clips/07032004/ALLFILES.DIR", "A.PDF||P||T||C||Y||1||d||1||1||1\r\nB.PDF||P||T||C||Y||1||d\r\n\r\n"},
        {"clips/07032004/A.PDF", "a"},
        {"clips/07032004/B.PDF", "b"},
        {"clips/07032004/OPENED.DIR", "[VIEW]\r\nB.PDF=1\r\n"},
        {"clips/07032004/PRINTED.DIR", "[PRINT]\r\nB.PDF=1\r\n"}};
    FakeTerminal terminal;
    Screen screen{terminal};
    ConsoleBoxes console{terminal, screen, loop};
    ConsoleView consoleView{screen, console};
    Commands commands{program, loop, consoleView, terminal, screen, console};
};

TEST_P(DiskFaultsTest, loseNothingAreToldAndMadeGoodByTheNextCommand) {
    const auto& [command, fault] = GetParam();
    auto after = before;
    const bool deletes = command.File.empty();
    if (deletes)
        std::erase_if(after, [](const auto& file) { return file.first.starts_with("clips"); });
    else
        after[command.File] = Replace(after[command.File], command.From, command.Into);
    const auto present = [&] {
        std::map<std::string, std::string> found;
        for (const auto& [name, content] : before)
            if (folder.has(name)) found[name] = folder.get(name);
        return found;
    };
    int n = 0;
    do {
        SCOPED_TRACE("fault at " + std::to_string(++n));
        begin();
        files.failAt(n, fault);
        const int code = run(command.Words);
        const std::string told = terminal.taken() + view.Message + boxes.shown();
        const bool isDone = present() == after;
        EXPECT_THAT(code, AnyOf(testing::Ne(exit_code::Good), ResultOf([&](int) { return isDone; }, true))) << told;
        EXPECT_THAT(present(), AnyOf(after, before, ResultOf([&](const auto&) { return deletes; }, true))) << told;
        if (!files.hasFailed()) break;
        EXPECT_THAT(logged() + told, AnyOf(ResultOf([&](const auto&) { return isDone; }, true), HasSubstr("Disk full"),
                                           HasSubstr("cannot be read")));
        begin();
        EXPECT_EQ(run(command.Words), exit_code::Good);
        EXPECT_EQ(present(), after);
    } while (!HasFailure());
    EXPECT_GT(n, fault == FaultyFiles::Fault::Once ? 3 : 0) << "a command has more places than that";
}

INSTANTIATE_TEST_SUITE_P(
    Commands, DiskFaultsTest,
    testing::Combine(testing::Values(CommandUnderFaults{"setup,Uid,bob", "vell.ini", "Uid=ann", "Uid=bob"},
                                     CommandUnderFaults{"schedule,remove,1", "vell.ini",
                                                        "Schedule1=Mon 07:30\r\nSchedule2=Tue 08:30",
                                                        "Schedule1=Tue 08:30"},
                                     CommandUnderFaults{"open,A.PDF", "clips/07032004/OPENED.DIR", "B.PDF=1\r\n",
                                                        "B.PDF=1\r\nA.PDF=1\r\n"},
                                     CommandUnderFaults{"print,A.PDF", "clips/07032004/PRINTED.DIR", "B.PDF=1\r\n",
                                                        "B.PDF=1\r\nA.PDF=1\r\n"},
                                     CommandUnderFaults{"delete,07/03/2004", "", "", ""}),
                     testing::Values(FaultyFiles::Fault::Once, FaultyFiles::Fault::FullFromThenOn)),
    [](const auto& row) {
        return std::string(Split(std::get<0>(row.param).Words, ",")[0]) +
               (std::get<1>(row.param) == FaultyFiles::Fault::Once ? "OneCall" : "DiskFull");
    });

}  // namespace vell::test
