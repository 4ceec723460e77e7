// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "console/ClippingsTable.h"
#include "console/CommandLine.h"
#include "console/ConsoleBoxes.h"
#include "console/Screen.h"
#include "console/SetupCommand.h"
#include "tests/support/FakeTerminal.h"
#include "tests/support/StoreRig.h"

namespace vell::test {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class ConsoleTest : public testing::Test, protected StoreRig {
  protected:
    Answer ask(Buttons buttons, std::string_view text = "Q") {
        return console.Show(text, programCaption, buttons, BoxIcon::None);
    }
    // The exit code of the setup command, its output, "!", and its error output.
    std::string change(const std::string& key, const std::optional<std::string>& value) {
        SetupCommand command(frmSetup({setup, loader, ini, log, files, english, ""}), terminal, screen, console);
        CommandLine line;
        if (!key.empty()) line.Key = key;
        line.Value = value;
        const int code = command.run(line);
        return std::to_string(code) + " " + terminal.taken();
    }

    FakeTerminal terminal;
    Screen screen{terminal};
    ConsoleBoxes console{terminal, screen, loop};
};

TEST_F(ConsoleTest, understandsItsCommandsAndRefusesTheRestWithAReason) {
    const auto describe = [](const CommandLine& line) {
        const char* commands[] = {"download", "list", "days", "setup"};
        const auto text = [](const auto& date) { return date ? date->dayName() : std::string("-"); };
        return std::string(commands[static_cast<int>(line.What)]) + " " + text(line.Day) + " " + text(line.From) + " " +
               text(line.To) + (line.Tsv ? " tsv" : "") + (line.Yes ? " yes " : " ") + line.Folder +
               line.Key.value_or("") + (line.Value ? "=" + *line.Value : "");
    };
    // Arguments between commas; after a number: the exit code, and a part of what is told.
    for (const auto& [arguments, meaning] : std::initializer_list<std::pair<const char*, const char*>>{
             {"download", "download - - - "},
             {"--folder,/f,--yes,download,--date,29/02/2004", "download 29/02/2004 - - yes /f"},
             {"download,--from,01/03/2004,--to,01/03/2004,--yes", "download - 01/03/2004 01/03/2004 yes "},
             {"list,--tsv,--date,07/03/2004,--folder,/f", "list 07/03/2004 - - tsv /f"},
             {"setup,Pwd,-", "setup - - - Pwd=-"},
             {"setup,Pwd,--,-x", "setup - - - Pwd=-x"},
             {"setup,DialUp,", "setup - - - DialUp="},
             {"--version", "0vell-console "},
             {"--help", "0Exit codes: 0 ended well"},
             {"--yes", "2subcommand is required"},
             {"fetch,--date,07/03/2004", "2There is no command 'fetch'"},
             {"download,--dat,07/03/2004", "2--dat"},
             {"download,--date,30/02/2004", "2'30/02/2004' is no day of the calendar"},
             {"list,--date,2004-03-07", "2'2004-03-07' is no day of the calendar"},
             {"download,--from,02/03/2004,--to,01/03/2004", "2is later than --to"},
             {"download,--from,02/03/2004", "2needs the other end of the range"},
             {"download,--date,02/03/2004,--from,02/03/2004,--to,02/03/2004", "2goes without --from"},
             {"setup,Uid,a,b", "2b"}}) {
        const auto pieces = Split(arguments, ",");
        int code = -1;
        const auto line = parseCommandLine({pieces.begin(), pieces.end()}, terminal, code);
        const std::string told = terminal.taken();
        const bool asMeant =
            line ? describe(*line) == meaning : code == meaning[0] - '0' && told.find(meaning + 1) != std::string::npos;
        EXPECT_TRUE(asMeant) << meaning << "\n" << told;
    }
}

TEST_F(ConsoleTest, rewritesTheStatusInPlaceOnATerminalAndPrintsLinesElsewhere) {
    screen.showStatus("one \xE1", 50);
    screen.showStatus("", -1);
    screen.tell("\r\na\r\n\r\nb\x1b\r\n");
    EXPECT_EQ(terminal.taken(), "one α\n!\na\n\nb \n");
    terminal.Person = true;
    screen.showStatus("one \xE1", 50);
    screen.showStatus(std::string(60, 'x'), -1);
    screen.print("y");
    screen.print("z");
    EXPECT_EQ(terminal.taken(), "\r[##########..........] one α\x1b[K\r" + std::string(38, 'x') + "…\x1b[K\ny\nz\n!");
    EXPECT_EQ(fitted("αβγ", 3) + fitted("αβγ", 2) + fitted("ab", 1) + fitted("ab", 0), "αβγα……");
}

TEST_F(ConsoleTest, fitsClippingsIntoTheWidthAndLetsNoneOfThemSteerTheTerminal) {
    CFtpFile file;
    file.FileName = "A.PDF";
    file.FilePath = "/c\\";
    file.ArticleType = "T";
    file.Category = std::string("\x1b[2J\x07\0\t\r\n\x7F\x81z", 12);
    std::vector<ClippingRow> rows{{.File = std::make_shared<CFtpFile>(file), .Printed = true}};
    file.NewspaperName = "\xCA\xC1";
    file.Description = "A title of some length";
    rows.push_back({.File = std::make_shared<CFtpFile>(file), .Number = 1, .Opened = true, .Printed = true});
    std::string table;
    for (const std::string& line : clippingsTable(rows, 51))
        table += line + "\n";
    EXPECT_EQ(table, R"(   Newspaper  Title              Type  Category
─  ─────────  ─────────────────  ────  ────────────
P             A.PDF              T      [2J       z
B  ΚΑ         A title of some …  T      [2J       z
)");
    EXPECT_EQ(columns(clippingsTable(rows, 1)[1]), 37U);
    EXPECT_EQ(clippingsTable({}, 80).size(), 2U);
    EXPECT_EQ(clippingTsv(rows[1]), "B\tΚΑ\tA title of some length\tT\t [2J       z\tA.PDF\t/c\\A.PDF");
}

TEST_F(ConsoleTest, answersByItselfWhenNobodyIsThere) {
    console.Show("text", "Caption", Buttons::Ok, BoxIcon::None);
    EXPECT_EQ(ask(Buttons::YesNo), Answer::No);
    EXPECT_EQ(ask(Buttons::AbortRetryIgnore), Answer::Abort);
    EXPECT_EQ(terminal.taken(), "!Caption: text\nQ\n-> No\nQ\n-> Abort\n");
    EXPECT_EQ(console.askForLine("?", false), std::nullopt);
    console.sayYesToAll();
    for (const char* question : {"Q", "another", "Q"}) {
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(ask(Buttons::RetryCancel, question), Answer::Retry);
        EXPECT_EQ(ask(Buttons::RetryCancel, question), Answer::Cancel);
    }
}

TEST_F(ConsoleTest, asksThePersonUntilAButtonIsNamed) {
    terminal.Person = true;
    terminal.Typed = {"", "x", " C ", "ign", "yess", "y"};
    EXPECT_EQ(ask(Buttons::OkCancel), Answer::Cancel);
    EXPECT_EQ(terminal.taken(), "!Q\nOK/Cancel? OK/Cancel? OK/Cancel? ");
    EXPECT_EQ(ask(Buttons::AbortRetryIgnore), Answer::Ignore);
    EXPECT_EQ(ask(Buttons::YesNo), Answer::Yes);
    EXPECT_EQ(ask(Buttons::YesNo), Answer::No);  // the input has ended
    terminal.Silent = true;
    const auto timer = loop.SetTimer(100, [&] { console.giveUpQuestion(); });
    EXPECT_EQ(ask(Buttons::YesNo), Answer::No);
    loop.KillTimer(timer);
}

TEST_F(ConsoleTest, changesOneSettingWithTheDialogsChecksAndShowsNoPassword) {
    for (const auto& [entry, answer] : std::initializer_list<std::pair<const char*, const char*>>{
             {"Uid=α",
              "0 Uid = α\n!Stored as proposed, too: Port, RetryOnFailure, RetryDelay, TimeOut, AutoPlayDelay, "
              "PrintAllDelay.\n"},
             {"Uid= ann ", "0 Uid = ann\n!Of the value given, only this much takes effect: ann\n"},
             {"Uid=\xE2\x82\xBF", "2 !The value of Uid has a character that is neither Latin nor Greek.\n"},
             {"Protocol=smtp", "2 !Protocol takes HTTP or FTP.\n"},
             {"TimeOut=120", "0 TimeOut = 12\n!Of the value given, only this much takes effect: 12\n"},
             {"RetryDelay=50", "2 !Error! Retry delay value set too high\n"},
             {"PrintOnDownload=yes", "2 !PrintOnDownload takes 0 or 1.\n"},
             {"LocalDir=clips", "2 !Error! Download path must be a full path, such as /home/ann/clippings\n"},
             {"LocalDir=/clips//", "0 LocalDir = /clips\n!"},
             {"Pwd=topsecret", "0 Pwd = (set)\n!"},
             {"proxyPwd=", "0 proxyPwd = (not set)\n!"},
             {"Debug=1", "2 !There is no setting 'Debug'. 'vell-console setup' shows them all.\n"}}) {
        const auto pieces = Split(entry, "=");
        EXPECT_EQ(change(std::string(pieces[0]), std::string(pieces[1])), answer) << entry;
    }
    const std::string all = change("UID", {}) + change("", {});
    EXPECT_THAT(all, StartsWith("0 ann\n!0 Protocol = HTTP"));
    EXPECT_THAT(all, HasSubstr("\nPwd = (set)"));
    EXPECT_EQ((all + folder.get("vell.ini")).find("topsecret"), std::string::npos);
    files.Trouble = "vell.ini";
    EXPECT_EQ(change("Pwd", "other"), "1 !Error! The settings file could not be written\n");
    EXPECT_EQ(setup.Pwd, "topsecret");
}

TEST_F(ConsoleTest, takesPasswordsUnseenAndRepairsDamagedOnes) {
    terminal.Typed = {"piped"};
    EXPECT_THAT(change("Pwd", "-"), StartsWith("0 Pwd = (set)\n!"));
    EXPECT_EQ(setup.Pwd, "piped");
    SetupCommand command(frmSetup({setup, loader, ini, log, files, english, ""}), terminal, screen, console);
    command.askForLogin();
    EXPECT_EQ(terminal.taken(), "!Change them with 'vell-console setup Uid NAME' and 'vell-console setup Pwd -'.\n");
    terminal.Person = true;
    terminal.Typed = {"ann", "secret", "", ""};
    command.askForLogin();
    command.askForLogin();
    EXPECT_THAT((std::vector{setup.Uid, setup.Pwd}), testing::ElementsAre("ann", "secret"));
    EXPECT_EQ(terminal.taken(), "Uid = ann\nPwd = (set)\n!User name []: Password: *\nUser name [ann]: Password: *\n");

    folder.put("vell.ini", "[Host]\r\nPwd=bad\r\nproxyPwd=bad\r\n[Download]\r\nLocalDir=/kept\r\n");
    const std::string shown = change("", {});
    const std::string damaged = "!" + std::string(loader.complaint()) + "\n";
    EXPECT_THAT(
        shown, EndsWith("passwords anew in Setup ('vell-console setup Pwd -' and 'vell-console setup proxyPwd -').\n"));
    EXPECT_EQ(change("Pwd", "new"), "0 Pwd was saved.\n" + damaged);
    EXPECT_EQ(change("proxyPwd", "") + setup.Pwd + setup.LocalDir, "0 proxyPwd = (not set)\n!new/kept");
}

}  // namespace vell::test
