// SPDX-License-Identifier: MIT
#include <vector>

#include <gtest/gtest.h>

#include "config/frmSetup.h"
#include "config/modCrypt.h"
#include "tests/support/SettingsRig.h"

namespace vell::test {
namespace {

using enum SetupField;

class frmSetupTest : public testing::Test, protected SettingsRig {
  protected:
    void fillIn() {
        const std::pair<SetupField, const char*> good[] = {
            {Protocol, "FTP"},        {Host, "service.example"}, {Port, "2121"},         {Uid, "ann"},
            {RetryOnFailure, "3"},    {RetryDelay, "49"},        {TimeOut, "99"},        {Passive, "1"},
            {ProxyUsername, "p\xE1"}, {ProxyPwd, "proxy"},       {LocalDir, "/clips"},   {Dialup, "Modem"},
            {PrintOnDownload, "1"},   {CloseConnection, "0"},    {AutoUpdateCheck, "0"}, {AutoUpdateServer, "1"},
            {AutoUpdateNotify, "1"},  {AutoPlayDelay, "7"},      {PrintAllDelay, "1"},   {Pwd, "sec ret"},
        };
        for (const auto& [field, text] : good)
            dialog.setEntry(field, text);
    }
    std::string scrambled(std::string_view clear) {
        std::string key;
        return Encrypt(clear, key, log);
    }

    frmSetup dialog{setup, loader, ini, log};
};

TEST_F(frmSetupTest, refusesEachEntryInItsTurnAndSavesNothingUntilAllAreRight) {
    dialog.Form_Load();
    fillIn();
    const struct {
        SetupField field;
        std::vector<std::string> wrong;
        std::string message;
        std::string right;
    } steps[] = {
        {Host, {"", "   "}, "Error! Host not specified", "h"},
        {Port, {"", " "}, "Error! Port not specified", "0"},
        {Uid, {" "}, "Error! Username not specified", "u"},
        {Pwd, {"", " "}, "Error! Password not specified", "p"},
        {RetryOnFailure, {"", "0", "-1", "abc", "0.5"}, "Error! Number of retries not specified", "12"},
        {RetryDelay, {" ", "0", "abc"}, "Error! Retry delay not specified", "50"},
        {RetryDelay, {"50", "49.5", "999999"}, "Error! Retry delay value set too high", "49"},
        {AutoPlayDelay, {"", "0"}, "Error! Auto play delay not specified", "50"},
        {AutoPlayDelay, {"50"}, "Error! Auto play delay set too high", "1"},
        {TimeOut, {"", "-5"}, "Error! Timeout not specified", "500"},
        {PrintAllDelay, {"", "0"}, "Error! Print All delay not specified", "50"},
        {PrintAllDelay, {"50"}, "Error! Print All delay set too high", "49"},
        // What the file could not give back.
        {Uid, {"a\r\n[x]", "a\tb"}, "Error! Uid must be one line without control characters", "u"},
        {ProxyPwd, {std::string(167, 'p')}, "Error! proxyPwd is too long", std::string(166, 'p')},
        {LocalDir, {std::string(250, 'd')}, "Error! LocalDir is too long", std::string(249, 'd')},
    };
    for (const auto& step : steps)
        dialog.setEntry(step.field, step.wrong.back());
    for (const auto& step : steps) {
        for (const std::string& wrong : step.wrong) {
            dialog.setEntry(step.field, wrong);
            const auto problem = dialog.cmdOk_Click();
            ASSERT_TRUE(problem.has_value()) << step.message << " " << wrong;
            EXPECT_EQ(problem->Message, step.message) << wrong;
            EXPECT_EQ(problem->Field, step.field);
        }
        dialog.setEntry(step.field, step.right);
    }
    EXPECT_FALSE(folder.has("vell.ini"));
    EXPECT_FALSE(dialog.cmdOk_Click().has_value());
    EXPECT_TRUE(folder.has("vell.ini"));
    EXPECT_EQ(setup.TimeOut, 50);  // the loader's cut
}

TEST_F(frmSetupTest, savesEveryKeyInItsOrderAndGivesItBack) {
    folder.put("vell.ini", "; mine\r\n[General]\r\nDebug=2\r\n");
    dialog.Form_Load();
    fillIn();
    ASSERT_FALSE(dialog.cmdOk_Click().has_value());
    EXPECT_EQ(folder.get("vell.ini"),
              "; mine\r\n[General]\r\nDebug=2\r\nAutoPlayDelay=7\r\nPrintAllDelay=1\r\n"
              "[Host]\r\nProtocol=FTP\r\nHost=service.example\r\nPort=2121\r\nUid=ann\r\nRetryOnFailure=3\r\n"
              "RetryDelay=49\r\nTimeOut=99\r\nPassive=1\r\nproxyUsername=p\xE1\r\nproxyPwd=" +
                  scrambled("proxy") + "\r\nPwd=" + scrambled("sec ret") +
                  "\r\n[Download]\r\nLocalDir=/clips\r\nDialup=Modem\r\nPrintOnDownload=1\r\nCloseConnection=0\r\n"
                  "AutoUpdateCheck=0\r\nAutoUpdateServer=1\r\nAutoUpdateNotify=1\r\n");
    frmSetup again(setup, loader, ini, log);
    again.Form_Load();
    for (const SetupRow& row : frmSetup::rows())
        EXPECT_EQ(again.entry(row.Field), row.Field == Passive ? "0" : dialog.entry(row.Field)) << row.Key;
    EXPECT_EQ(setup.Debug, 2);
}

TEST_F(frmSetupTest, changesTheSettingsAtOnceOnlyUntilItIsClosed) {
    load("[Host]\r\nProtocol=HTTP\r\n");
    dialog.Form_Load();
    for (const SetupField field : {Port, TimeOut, Passive})
        EXPECT_FALSE(dialog.isEnabled(field));
    dialog.setEntry(Protocol, "FTP");
    EXPECT_FALSE(setup.UseHTTP);
    EXPECT_TRUE(dialog.isEnabled(Port));
    dialog.Form_Unload();
    EXPECT_TRUE(setup.UseHTTP);
    const struct {
        SetupField field;
        std::string typed, normal;
    } table[] = {{Port, "12abc", "12"}, {Port, "a", "0"},         {RetryDelay, " 7.50x", "7.5"},
                 {TimeOut, "007", "7"}, {Host, "12abc", "12abc"}, {Pwd, "007", "007"}};
    for (const auto& row : table) {
        dialog.setEntry(row.field, row.typed);
        dialog.normalise(row.field);
        EXPECT_EQ(dialog.entry(row.field), row.normal);
    }
}

TEST_F(frmSetupTest, savesOneEntryAloneAndTellsWhenItCannot) {
    const std::string file = "[Host]\r\nHost=h\r\nPwd=bad\r\n[Download]\r\nLocalDir=/kept\r\n";
    folder.put("vell.ini", file);
    dialog.Form_Load();
    dialog.setEntry(Pwd, "AB");
    EXPECT_FALSE(dialog.saveOnly(Pwd).has_value());
    EXPECT_EQ(folder.get("vell.ini"),
              "[Host]\r\nHost=h\r\nPwd=" + scrambled("AB") + "\r\n[Download]\r\nLocalDir=/kept\r\n");
    EXPECT_EQ(setup.LocalDir, "/kept");
    dialog.setEntry(RetryDelay, "50");
    EXPECT_EQ(dialog.saveOnly(RetryDelay)->Message, "Error! Retry delay value set too high");

    std::filesystem::remove(folder.path() / "vell.ini");
    std::filesystem::create_directory(folder.path() / "vell.ini");
    dialog.setEntry(Uid, "ann");
    const auto problem = dialog.saveOnly(Uid);
    ASSERT_TRUE(problem.has_value());
    EXPECT_EQ(problem->Message, "Error! The settings file could not be written");
}

}  // namespace
}  // namespace vell::test
