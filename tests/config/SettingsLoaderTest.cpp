// SPDX-License-Identifier: MIT
#include <map>

#include <gtest/gtest.h>

#include "base/text.h"
#include "config/SettingsLoader.h"
#include "tests/support/SettingsRig.h"

namespace vell::test {
namespace {

using Fields = std::map<std::string, std::string>;

Fields fieldsOf(const Settings& s) {
    const auto flag = [](bool value) { return std::string(value ? "yes" : "no"); };
    return {{"Protocol", s.Protocol},
            {"UseHTTP", flag(s.UseHTTP)},
            {"Host", s.Host},
            {"Port", NumberText(s.Port)},
            {"Uid", s.Uid},
            {"Pwd", s.Pwd},
            {"RetryOnFailure", NumberText(s.RetryOnFailure)},
            {"RetryDelay", NumberText(s.RetryDelay)},
            {"TimeOut", NumberText(s.TimeOut)},
            {"Passive", flag(s.Passive)},
            {"proxyUsername", s.proxyUsername},
            {"proxyPwd", s.proxyPwd},
            {"LocalDir", s.LocalDir},
            {"DialUp", s.DialUp},
            {"PrintOnDownload", flag(s.PrintOnDownload)},
            {"CloseConnection", flag(s.CloseConnection)},
            {"AutoUpdateCheck", flag(s.AutoUpdateCheck)},
            {"AutoUpdateServer", flag(s.AutoUpdateServer)},
            {"AutoUpdateNotify", flag(s.AutoUpdateNotify)},
            {"AutoPlayDelay", NumberText(s.AutoPlayDelay)},
            {"PrintAllDelay", NumberText(s.PrintAllDelay)},
            {"Debug", NumberText(s.Debug)},
            {"AgentName", s.AgentName}};
}

const Fields defaults{
    {"Protocol", ""},
    {"UseHTTP", "yes"},
    {"Host", ""},
    {"Port", "0"},
    {"Uid", ""},
    {"Pwd", ""},
    {"RetryOnFailure", "0"},
    {"RetryDelay", "0"},
    {"TimeOut", "0"},
    {"Passive", "no"},
    {"proxyUsername", ""},
    {"proxyPwd", ""},
    {"LocalDir", ""},
    {"DialUp", ""},
    {"PrintOnDownload", "no"},
    {"CloseConnection", "no"},
    {"AutoUpdateCheck", "yes"},
    {"AutoUpdateServer", "no"},
    {"AutoUpdateNotify", "no"},
    {"AutoPlayDelay", "0"},
    {"PrintAllDelay", "0"},
    {"Debug", "0"},
    {"AgentName", "VELL_2.0.15_user:"},
};

class SettingsLoaderTest : public testing::Test, protected SettingsRig {};

TEST_F(SettingsLoaderTest, readsEachKeyIntoItsOwnFieldAndLeavesTheOthersAtTheirDefaults) {
    const struct {
        std::string line;
        Fields changed;
        bool logged = false;  // a failed conversion
    } table[] = {
        {"[Host]\r\nProtocol=FTP", {{"Protocol", "FTP"}, {"UseHTTP", "no"}}},
        {"[host]\nPROTOCOL = ftp", {{"Protocol", "ftp"}}},
        {"[Host]\r\nHost=service.example", {{"Host", "service.example"}}},
        {"[Host]\r\nHost=" + std::string(300, 'h'), {{"Host", std::string(249, 'h')}}},
        {"[Host]\r\nHost=#NF#", {}},
        {"[Host]\r\nHost=a" + std::string(1, '\0') + "b", {{"Host", "ab"}}},
        {"[Host]\r\nHost", {}},
        {"\xEF\xBB\xBF[Host]\nHost=bom", {{"Host", "bom"}}},
        {"[Host]\r\nPort=2121", {{"Port", "2121"}}},
        {"[Host]\r\nPort=65000", {{"Port", "6500"}}},
        {"[Host]\r\nPort=12abc", {{"Port", "12"}}},
        {"[Host]\r\nPort=abc", {}},
        {"[Host]\r\nUid=\xE1\xED", {{"Uid", "\xE1\xED"}, {"AgentName", "VELL_2.0.15_user:\xE1\xED"}}},
        {"[Host]\r\nRetryOnFailure=12", {{"RetryOnFailure", "1"}}},
        {"[Host]\r\nRetryDelay=7.5", {{"RetryDelay", "7"}}},
        {"[Host]\r\nRetryDelay=.5", {{"RetryDelay", "0.5"}}},
        {"[Host]\r\nTimeOut=300", {{"TimeOut", "30"}}},
        {"[Host]\r\nTimeOut=.5", {}},  // half to even
        {"[Host]\r\nPassive=1", {}},
        {"[Host]\r\nproxyUsername=ann", {{"proxyUsername", "ann"}}},
        {"[Host]\r\nPwd=w\x6F\xC0", {{"Pwd", "AB"}}},
        {"[Host]\r\nproxyPwd=w\x6F\xC0", {{"proxyPwd", "AB"}}},
        {"[Download]\r\nLocalDir=/home/ann/clips", {{"LocalDir", "/home/ann/clips"}}},
        {"[Download]\r\nDialup=Modem", {{"DialUp", "Modem"}}},
        {"[Download]\r\nPrintOnDownload=-1", {{"PrintOnDownload", "yes"}}},
        {"[Download]\r\nPrintOnDownload=yes", {}, true},
        {"[Download]\r\nPrintOnDownload=70000", {}, true},
        {"[Download]\r\nCloseConnection=1", {{"CloseConnection", "yes"}}},
        {"[Download]\r\nCloseConnection=1x", {}, true},
        {"[Download]\r\nAutoUpdateCheck=", {}},
        {"[Download]\r\nAutoUpdateCheck=0", {{"AutoUpdateCheck", "no"}}},
        {"[Download]\r\nAutoUpdateServer=1", {{"AutoUpdateServer", "yes"}}},
        {"[Download]\r\nAutoUpdateNotify=1x", {{"AutoUpdateNotify", "yes"}}},
        {"[General]\r\nAutoPlayDelay=100", {{"AutoPlayDelay", "10"}}},
        {"[General]\r\nPrintAllDelay=5", {{"PrintAllDelay", "5"}}},
        {"[General]\r\nDebug=2", {{"Debug", "2"}}},
    };
    // Three numbers that are missing or no numbers are told, each time; whichever line sets one leaves two.
    for (const auto& row : table) {
        Fields expected = defaults;
        for (const auto& [field, value] : row.changed)
            expected[field] = value;
        setup = {};
        std::filesystem::remove(folder.path() / "vell.log");
        load(row.line);
        EXPECT_EQ(fieldsOf(setup), expected) << row.line;
        const bool setsNumber = row.changed.contains("PrintOnDownload") || row.changed.contains("CloseConnection") ||
                                row.changed.contains("Debug");
        const std::string lines = folder.get("vell.log");
        EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), setsNumber ? 2 : 3) << row.line << lines;
        EXPECT_TRUE(
            logHas("Description=Type mismatch, LastDllError=0, HelpFile=, HelpContext=0 in VellIniReadString()"));
    }
}

TEST_F(SettingsLoaderTest, aKeyThatHasGoneGivesItsDefaultAgain) {
    load("[Host]\r\nHost=a\r\nPort=21\r\n[Download]\r\nPrintOnDownload=1\r\n[General]\r\nDebug=1\r\n");
    load("");
    EXPECT_EQ(fieldsOf(setup), defaults);
}

TEST_F(SettingsLoaderTest, aDamagedPasswordEndsTheLoadWhereItStands) {
    const std::string before = "[Host]\r\nHost=old\r\nPwd=w\x6F\xC0\r\n[Download]\r\nLocalDir=/old\r\n";
    for (const char* key : {"Pwd", "proxyPwd"}) {
        load(before);
        load(std::string("[Host]\r\nHost=new\r\n") + key + "=bad\r\n[Download]\r\nLocalDir=/new\r\n");
        EXPECT_EQ(setup.Host, "new");
        EXPECT_EQ(setup.Pwd, "AB");
        EXPECT_EQ(setup.LocalDir, "/old");
        EXPECT_TRUE(
            logHas("Error=20000, Source=Vell, Description=Unexpected Error, LastDllError=0, HelpFile=, "
                   "HelpContext=0 in Decrypt()\r\n07/03/2004 06:29:00,   GetSetup()\r\n"));
    }
    EXPECT_EQ(folder.get("vell.ini").find("LocalDir=/new") != std::string::npos, true);
}

TEST_F(SettingsLoaderTest, plainReadsAndWritesWorkOnAnyFile) {
    const std::string file = folder.text() + "\\OPENED.DIR";
    std::string value = "before";
    EXPECT_FALSE(ini.IniReadString(file, "VIEW", "A.PDF", value));
    EXPECT_EQ(value, "");
    EXPECT_TRUE(ini.IniWriteString(file, "VIEW", "A.PDF", "1"));
    EXPECT_TRUE(ini.IniReadString(file, "view", "a.pdf", value));
    EXPECT_EQ(value, "1");
    EXPECT_FALSE(ini.IniWriteString(folder.text() + "\\none\\X.DIR", "VIEW", "A.PDF", "1"));
    EXPECT_FALSE(folder.has("vell.ini"));
}

}  // namespace
}  // namespace vell::test
