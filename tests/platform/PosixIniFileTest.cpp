// SPDX-License-Identifier: MIT
#include <filesystem>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/text.h"
#include "platform/posix/files/PosixFiles.h"
#include "platform/posix/files/ini/PosixIniFile.h"
#include "tests/support/TempFolder.h"

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

class PosixIniFileTest : public testing::Test {
  protected:
    [[nodiscard]] std::string read(std::string_view key, std::size_t size = 250) const {
        return ini_.ReadString(file_, "Host", key, "#NF#", size);
    }
    static void write(IniFile& ini, const std::string& file, const std::string& key, std::optional<std::string> value) {
        ini.Update(file, [&] { return std::vector{IniEdit{"Host", key, value}}; });
    }
    // A process of its own that adds one to a number, again and again; its exit code is 0.
    [[nodiscard]] pid_t counter(int times) const {
        const pid_t process = fork();
        if (process != 0) return process;
        PosixFiles files;
        PosixIniFile ini(files);
        for (int i = 0; i < times; ++i)
            ini.Update(file_, [&] {
                const int count = CInt16(ini.ReadString(file_, "Host", "Port", "0", 250));
                return std::vector{IniEdit{"Host", "Port", std::to_string(count + 1)}};
            });
        _exit(0);
    }

    TempFolder folder_;
    PosixFiles files_;
    PosixIniFile ini_{files_};
    std::string file_ = folder_.text() + "\\vell.ini";
};

TEST_F(PosixIniFileTest, everyByteOfAValueSurvivesApartFromLineEnds) {
    EXPECT_EQ(read("Pwd"), "#NF#");
    std::string all = "x";
    for (int c = 0; c < 256; ++c)
        if (c != '\r' && c != '\n') all += static_cast<char>(c);
    all += 'x';
    write(ini_, file_, "Pwd", all);
    EXPECT_EQ(read("pwd", 1000), all);
    EXPECT_EQ(read("pwd", 250), all.substr(0, 249));
    EXPECT_EQ(PosixIniFile(files_).ReadString(file_, "HOST", "PWD", "", 1000), all);
    EXPECT_THROW(write(ini_, file_, "Uid", "a\r\nPwd=stolen"), RunTimeError);
    write(ini_, file_, "Pwd", std::nullopt);
    EXPECT_EQ(read("pwd"), "#NF#");
    EXPECT_EQ(std::filesystem::status(folder_.path() / "vell.ini").permissions(), std::filesystem::perms{0600});
}

TEST_F(PosixIniFileTest, aFileThatAnotherHasChangedIsReadAgain) {
    for (int i = 10; i < 60; ++i) {  // same length, and often within one tick of the file system's clock
        folder_.put("vell.ini", "[Host]\nPort=" + std::to_string(i));
        EXPECT_EQ(read("Port"), std::to_string(i));
    }
    ini_.ReadAtOnce(file_, [&] {
        folder_.put("vell.ini", "[Host]\nPort=60");
        EXPECT_EQ(read("Port"), "59");
    });
    std::filesystem::remove(folder_.path() / "vell.ini");
    EXPECT_EQ(read("Port"), "#NF#");
}

TEST_F(PosixIniFileTest, aFileThatCannotBeReadOrWrittenIsLeftAlone) {
    std::filesystem::create_directory(folder_.path() / "vell.ini");
    EXPECT_THROW((void)read("Port"), RunTimeError) << "it is there, so it is not empty";
    EXPECT_THROW(write(ini_, file_, "Port", "80"), RunTimeError);
    EXPECT_THROW(write(ini_, folder_.text() + "\\gone\\vell.ini", "Port", "80"), RunTimeError);
}

TEST_F(PosixIniFileTest, ofTwoWritersNoneLosesTheWorkOfTheOther) {
    constexpr int times = 25;
    for (const pid_t process : {counter(times), counter(times)}) {
        int status = -1;
        waitpid(process, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(read("Port"), std::to_string(2 * times));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.path()), {}), 1) << "no lock stays behind";
}

}  // namespace
}  // namespace vell::test
