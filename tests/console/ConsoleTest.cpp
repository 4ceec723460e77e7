// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "console/ClippingsTable.h"
#include "console/CommandLine.h"
#include "console/ConsoleBoxes.h"
#include "console/Screen.h"
#include "platform/asio/AsioEventLoop.h"
#include "tests/support/DrivenClock.h"
#include "tests/support/FakeTerminal.h"

namespace vell::test {
namespace {

std::string describe(const CommandLine& line) {
    const auto day = [](const char* name, const std::optional<Date>& date) {
        return date ? name + date->dayName() : std::string();
    };
    const char* commands[] = {"download", "list", "days", "setup"};
    return commands[static_cast<int>(line.What)] + day(" on ", line.Day) + day(" from ", line.From) +
           day(" to ", line.To) + (line.Tsv ? " tsv" : "") + (line.Yes ? " yes" : "") +
           (line.Folder.empty() ? "" : " in " + line.Folder) + (line.Key ? " " + *line.Key : "") +
           (line.Value ? "=" + *line.Value : "");
}

TEST(CommandLineTest, understandsItsCommandsAndRefusesTheRestWithAReason) {
    const struct {
        std::vector<std::string> arguments;
        std::string meaning;  // after a number: the exit code, and a part of what is written
    } table[] = {
        {{"download"}, "download"},
        {{"--folder", "/f", "--yes", "download", "--date", "29/02/2004"}, "download on 29/02/2004 yes in /f"},
        {{"download", "--from", "01/03/2004", "--to", "01/03/2004", "--yes"},
         "download from 01/03/2004 to 01/03/2004 yes"},
        {{"list", "--tsv", "--date", "07/03/2004", "--folder", "/f"}, "list on 07/03/2004 tsv in /f"},
        {{"days"}, "days"},
        {{"setup"}, "setup"},
        {{"setup", "Uid", "\xCE\xB1"}, "setup Uid=\xCE\xB1"},
        {{"setup", "Pwd", "-"}, "setup Pwd=-"},
        {{"setup", "Pwd", "--", "-x"}, "setup Pwd=-x"},
        {{"setup", "DialUp", ""}, "setup DialUp="},
        {{"--version"}, "0vell-console "},
        {{"--help"}, "0Exit codes: 0 ended well"},
        {{"download", "--help"}, "0dd/mm/yyyy"},
        {{}, "2subcommand is required"},
        {{"fetch", "--date", "07/03/2004"}, "2There is no command 'fetch'"},
        {{"download", "--dat", "07/03/2004"}, "2--dat"},
        {{"download", "--date"}, "2--date"},
        {{"download", "--date", "30/02/2004"}, "2'30/02/2004' is no day of the calendar"},
        {{"list", "--date", "2004-03-07"}, "2'2004-03-07' is no day of the calendar"},
        {{"download", "--from", "02/03/2004", "--to", "01/03/2004"}, "2is later than --to"},
        {{"download", "--from", "02/03/2004"}, "2needs the other end of the range"},
        {{"download", "--to", "02/03/2004"}, "2needs the other end of the range"},
        {{"download", "--date", "02/03/2004", "--from", "02/03/2004", "--to", "02/03/2004"}, "2goes without --from"},
        {{"setup", "Uid", "a", "b"}, "2b"},
    };
    for (const auto& row : table) {
        FakeTerminal terminal;
        int code = -1;
        const auto line = parseCommandLine(row.arguments, terminal, code);
        if (line) {
            EXPECT_EQ(describe(*line), row.meaning);
            continue;
        }
        EXPECT_EQ(std::to_string(code), row.meaning.substr(0, 1)) << row.meaning;
        EXPECT_NE((code == 0 ? terminal.Out : terminal.Err).find(row.meaning.substr(1)), std::string::npos)
            << row.meaning << terminal.Out << terminal.Err;
    }
}

class ScreenTest : public testing::Test {
  protected:
    FakeTerminal terminal;
    Screen screen{terminal};
};

TEST_F(ScreenTest, rewritesTheStatusInPlaceOnATerminalAndPrintsLinesElsewhere) {
    screen.showStatus("one \xE1", 50);
    screen.showStatus("", -1);
    screen.tell("a\r\n\r\nb\r\n");
    screen.print("x");
    EXPECT_EQ(terminal.taken(), "one \xCE\xB1\nx\n!a\n\nb\n");
    terminal.Person = true;
    screen.showStatus("one \xE1", 50);
    EXPECT_EQ(terminal.taken(), "\r[##########..........] one \xCE\xB1\x1b[K");
    screen.showStatus(std::string(60, 'x'), -1);
    EXPECT_EQ(terminal.taken(), "\r" + std::string(38, 'x') + "…\x1b[K");
    screen.print("y");
    screen.print("z");
    EXPECT_EQ(terminal.taken(), "\ny\nz\n");
}

TEST_F(ScreenTest, letsNoTextOfTheServiceSteerTheTerminal) {
    EXPECT_EQ(shownText(std::string("\x1b[2J\x07\0\t\r\n\x7F\x81\xA0z", 13)), " [2J       \xC2\xA0z");
    EXPECT_EQ(shownLines("\na\r\nb\x1b\n\n"), "\na\nb ");
    EXPECT_EQ(columns("\xCE\xB1"
                      "b…"),
              3U);
    EXPECT_EQ(fitted("\xCE\xB1\xCE\xB2\xCE\xB3", 3), "\xCE\xB1\xCE\xB2\xCE\xB3");
    EXPECT_EQ(fitted("\xCE\xB1\xCE\xB2\xCE\xB3", 2), "\xCE\xB1…");
    EXPECT_EQ(fitted("ab", 1) + fitted("ab", 0), "…");
}

TEST(ClippingsTableTest, fitsItsColumnsIntoTheWidth) {
    const auto row = [](const char* paper, const char* title, const char* type, bool opened, bool printed) {
        auto file = std::make_shared<CFtpFile>();
        file->FileName = "A.PDF";
        file->FilePath = "/c\\07032004\\";
        file->NewspaperName = paper;
        file->Description = title;
        file->ArticleType = type;
        file->Category = "P\t1,P2";
        return ClippingRow{file, opened, printed};
    };
    const std::vector<ClippingRow> rows{row("\xCA\xC1", "A title of some length", " ", true, true),
                                        row("", "", "T", false, true), row("N", "", "T", true, false)};
    EXPECT_EQ(
        clippingsTable(rows, 48),
        (std::vector<std::string>{
            "   Newspaper  Title               Type  Category", "─  ─────────  ──────────────────  ────  ────────",
            "B  \xCE\x9A\xCE\x91         A title of some l…        P 1,P2",
            "P             A.PDF               T     P 1,P2", "O  N                              T     P 1,P2"}));
    EXPECT_EQ(columns(clippingsTable(rows, 0)[1]), 52U);
    EXPECT_EQ(columns(clippingsTable(rows, 1)[1]), 37U);
    EXPECT_EQ(clippingsTable({}, 80).size(), 2U);
    EXPECT_EQ(clippingTsv(rows[0]),
              "B\t\xCE\x9A\xCE\x91\tA title of some length\t\tP 1,P2\tA.PDF\t/c\\07032004\\A.PDF");
    EXPECT_EQ(clippingTsv(row("N", "", "T", false, false)), "-\tN\t\tT\tP 1,P2\tA.PDF\t/c\\07032004\\A.PDF");
}

class ConsoleBoxesTest : public ScreenTest {
  protected:
    Answer ask(Buttons buttons, std::string_view text = "Q") {
        return boxes.Show(text, programCaption, buttons, BoxIcon::None);
    }
    DrivenClock clock;
    AsioEventLoop loop{clock};
    ConsoleBoxes boxes{terminal, screen, loop};
};

TEST_F(ConsoleBoxesTest, answersByItselfWhenNobodyIsThere) {
    boxes.Show("text", "Caption", Buttons::Ok, BoxIcon::None);
    EXPECT_EQ(terminal.taken(), "!Caption: text\n");
    EXPECT_EQ(ask(Buttons::YesNo), Answer::No);
    EXPECT_EQ(ask(Buttons::AbortRetryIgnore), Answer::Abort);
    EXPECT_EQ(terminal.taken(), "!Q\n-> No\nQ\n-> Abort\n");
    EXPECT_EQ(boxes.askForLine("?", false), std::nullopt);
    boxes.sayYesToAll();
    for (const char* question : {"Q", "another", "Q"}) {
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(ask(Buttons::RetryCancel, question), Answer::Retry);
        EXPECT_EQ(ask(Buttons::RetryCancel, question), Answer::Cancel);
    }
}

TEST_F(ConsoleBoxesTest, asksThePersonUntilAButtonIsNamed) {
    terminal.Person = true;
    terminal.Typed = {"", "x", " C "};
    EXPECT_EQ(ask(Buttons::OkCancel), Answer::Cancel);
    EXPECT_EQ(terminal.taken(), "!Q\nOK/Cancel? OK/Cancel? OK/Cancel? ");
    terminal.Typed = {"ign", "yes", "yess", "y"};
    EXPECT_EQ(ask(Buttons::AbortRetryIgnore), Answer::Ignore);
    EXPECT_EQ(ask(Buttons::YesNo), Answer::Yes);
    EXPECT_EQ(ask(Buttons::YesNo), Answer::Yes);
    EXPECT_EQ(ask(Buttons::YesNo), Answer::No);  // the input has ended
    terminal.taken();
    terminal.Typed = {"secret"};
    EXPECT_EQ(boxes.askForLine("Password: ", true), "secret");
    EXPECT_EQ(terminal.taken(), "!Password: *\n");
    EXPECT_TRUE(terminal.Echo);
    terminal.Silent = true;
    const auto timer = loop.SetTimer(100, [&] { boxes.giveUpQuestion(); });
    EXPECT_EQ(ask(Buttons::YesNo), Answer::No);
    loop.KillTimer(timer);
}

}  // namespace
}  // namespace vell::test
