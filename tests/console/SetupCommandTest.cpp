// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "console/CommandLine.h"
#include "console/ConsoleBoxes.h"
#include "console/Screen.h"
#include "console/SetupCommand.h"
#include "platform/asio/AsioEventLoop.h"
#include "tests/support/FakeTerminal.h"
#include "tests/support/SettingsRig.h"

namespace vell::test {
namespace {

class SetupCommandTest : public testing::Test, protected SettingsRig {
  protected:
    // The exit code, and what was written.
    std::string run(std::optional<std::string> key = {}, std::optional<std::string> value = {}) {
        SetupCommand command(frmSetup(setup, loader, ini, log), terminal, screen, boxes);
        CommandLine line;
        line.Key = std::move(key);
        line.Value = std::move(value);
        const int code = command.run(line);
        return std::to_string(code) + " " + terminal.taken();
    }

    AsioEventLoop loop{clock};
    FakeTerminal terminal;
    Screen screen{terminal};
    ConsoleBoxes boxes{terminal, screen, loop};
};

TEST_F(SetupCommandTest, changesOneSettingWithTheDialogsChecks) {
    const struct {
        std::string key, value, answer;
    } table[] = {
        {"host", "service.example", "0 Host = service.example\n"},
        {"Uid", "\xCE\xB1", "0 Uid = \xCE\xB1\n"},
        {"Uid", " ann ", "0 Uid = ann\n!Of the value given, only this much takes effect: ann\n"},
        {"Uid", "\xE2\x82\xBF", "2 !The value of Uid has a character that is neither Latin nor Greek.\n"},
        {"Uid", "", "2 !Error! Username not specified\n"},
        {"Protocol", "ftp", "0 Protocol = FTP\n"},
        {"Protocol", "smtp", "2 !Protocol takes HTTP or FTP.\n"},
        {"TimeOut", "120", "0 TimeOut = 12\n!Of the value given, only this much takes effect: 12\n"},
        {"TimeOut", "soon", "2 !TimeOut takes a number.\n"},
        {"RetryDelay", "50", "2 !Error! Retry delay value set too high\n"},
        {"PrintOnDownload", "yes", "2 !PrintOnDownload takes 0 or 1.\n"},
        {"CloseConnection", "1", "0 CloseConnection = 1\n"},
        {"LocalDir", "clips", "2 !LocalDir takes a full path, such as /home/ann/clippings.\n"},
        {"LocalDir", "/clips//", "0 LocalDir = /clips\n"},
        {"Pwd", "topsecret", "0 Pwd = (set)\n"},
        {"proxyPwd", "", "0 proxyPwd = (not set)\n"},
        {"Debug", "1", "2 !There is no setting 'Debug'. 'vell-console setup' shows them all.\n"},
    };
    for (const auto& row : table)
        EXPECT_EQ(run(row.key, row.value), row.answer) << row.key << row.value;
    EXPECT_EQ(run("UID"), "0 ann\n");
    EXPECT_EQ(setup.Pwd, "topsecret");
    EXPECT_EQ(folder.get("vell.ini").find("topsecret"), std::string::npos);
    const std::string all = run();
    EXPECT_NE(all.find("Pwd = (set)"), std::string::npos);
    EXPECT_EQ(all.find("topsecret"), std::string::npos);
    EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), 20);
}

TEST_F(SetupCommandTest, takesAPasswordFromTheInputAndShowsNoneEvenWhenItCannotBeSaved) {
    terminal.Typed = {"piped"};
    EXPECT_EQ(run("Pwd", "-"), "0 Pwd = (set)\n");
    EXPECT_EQ(setup.Pwd, "piped");
    terminal.Person = true;
    terminal.Typed = {"typed"};
    EXPECT_EQ(run("Pwd", "-"), "0 Pwd = (set)\n!Pwd: *\n");
    EXPECT_EQ(setup.Pwd, "typed");
    std::filesystem::remove(folder.path() / "vell.ini");
    std::filesystem::create_directory(folder.path() / "vell.ini");
    EXPECT_EQ(run("Pwd", "other"), "1 !Error! The settings file could not be written\n");
}

TEST_F(SetupCommandTest, repairsAFileWithDamagedPasswords) {
    folder.put("vell.ini", "[Host]\r\nPwd=bad\r\nproxyPwd=bad\r\n[Download]\r\nLocalDir=/clips\r\n");
    EXPECT_NE(run().find("!" + std::string(damagedSettings)), std::string::npos);
    EXPECT_EQ(run("Pwd", "new"), "0 Pwd was saved.\n!" + std::string(damagedSettings) + "\n");
    EXPECT_EQ(run("proxyPwd", ""), "0 proxyPwd = (not set)\n");
    EXPECT_EQ(setup.Pwd + setup.LocalDir, "new/clips");
}

TEST_F(SetupCommandTest, asksForTheLoginAnew) {
    SetupCommand command(frmSetup(setup, loader, ini, log), terminal, screen, boxes);
    command.askForLogin();
    EXPECT_EQ(terminal.taken(), "!Change them with 'vell-console setup Uid NAME' and 'vell-console setup Pwd -'.\n");
    terminal.Person = true;
    terminal.Typed = {"ann", "secret", "", ""};
    command.askForLogin();
    EXPECT_EQ(setup.Uid + setup.Pwd, "annsecret");
    command.askForLogin();
    EXPECT_EQ(setup.Uid + setup.Pwd, "annsecret");
    EXPECT_EQ(terminal.taken(), "Uid = ann\nPwd = (set)\n!User name []: Password: *\nUser name [ann]: Password: *\n");
}

}  // namespace
}  // namespace vell::test
