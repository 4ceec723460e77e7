// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/posix/files/ini/IniText.h"

namespace vell::test {
namespace {

TEST(IniTextTest, looksUpAsThePrivateProfileCallsDo) {
    const IniText ini(
        "\xEF\xBB\xBFstray=1\n[Host]\r\n ; Host=comment\r\n  HOST \t=  service.example  \r\nQuoted=\" a b \"\r\n"
        "Single='x'\r\nOpen=\"x\r\nEmpty=\r\nno value\r\nhost=second\r\n=nameless\r\nA=b=c;d\r\n"
        "[ Download ] ; rest\nDialUp=Office\n[host]\nLate=1\n[Broken\nStill=1\n[End]\nLast=half");
    EXPECT_EQ(ini.value("host", "Host"), "service.example");
    EXPECT_EQ(ini.value("HOST", " quoted "), " a b ");
    EXPECT_EQ(ini.value("Host", "Single"), "x");
    EXPECT_EQ(ini.value("Host", "Open"), "\"x");
    EXPECT_EQ(ini.value("Host", "Empty"), "");
    EXPECT_EQ(ini.value("Host", "A"), "b=c;d");
    EXPECT_EQ(ini.value("Host", ""), "nameless");
    EXPECT_EQ(ini.value("download", "Dialup"), "Office");
    EXPECT_EQ(ini.value("End", "Last"), "half");
    for (const auto& [section, key] : std::vector<std::pair<const char*, const char*>>{
             {"Host", "no value"}, {"hosT", "Late"}, {"", "stray"}, {"HOST", "; Host"}, {"Gone", "Host"}})
        EXPECT_EQ(ini.value(section, key), std::nullopt) << key;
}

TEST(IniTextTest, editsLeaveEveryOtherLineAsItIs) {
    const auto edited = [](std::string bytes, auto edit) {
        IniText ini(std::move(bytes));
        edit(ini);
        return ini.bytes();
    };
    const auto setX = [](IniText& ini) { ini.set("S", "X", "new"); };
    EXPECT_EQ(edited("", setX), "[S]\r\nX=new\r\n");
    EXPECT_EQ(edited("[A]\nk=v", setX), "[A]\nk=v\n[S]\nX=new\n");
    EXPECT_EQ(edited("\xEF\xBB\xBF[s]\r\n x = \"old\" \r\n;c\r\n", setX), "\xEF\xBB\xBF[s]\r\n x = new\r\n;c\r\n");
    EXPECT_EQ(edited("[S]\nA=1\n\n;c\n\n\n[T]\n", setX), "[S]\nA=1\n\n;c\nX=new\n\n\n[T]\n");
    EXPECT_EQ(edited("[S]\nx=1\nX=2", setX), "[S]\nx=new\nX=2");
    EXPECT_EQ(edited("[S]\nA=half", setX), "[S]\nA=half\nX=new\n");
    const auto removeX = [](IniText& ini) { ini.removeKey("s", "x"); };
    EXPECT_EQ(edited("[S]\nA=1\nX=1\n\nx=2", removeX), "[S]\nA=1\n\n");
    EXPECT_EQ(edited("[T]\nX=1\n", removeX), "[T]\nX=1\n");
    const auto removeS = [](IniText& ini) { ini.removeSection("S"); };
    EXPECT_EQ(edited("[A]\n1=1\n[S]\nX=1\n\n[T]\nX=1\n[s]\nX=2", removeS), "[A]\n1=1\n[T]\nX=1\n");
}

}  // namespace
}  // namespace vell::test
