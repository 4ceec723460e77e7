// SPDX-License-Identifier: MIT
#include <filesystem>
#include <thread>

#include <gtest/gtest.h>

#include "base/text.h"
#include "platform/SystemTypes.h"
#include "tests/support/TempFolder.h"
#include "tests/support/system.h"

namespace vell::test {
namespace {

class IniFileTest : public testing::Test {
  protected:
    [[nodiscard]] std::string read(std::string_view key, std::size_t size = 250) const {
        return ini_.ReadString(file_, "Host", key, "#NF#", size);
    }
    static void write(IniFile& ini, const std::string& file, const std::string& key, std::optional<std::string> value) {
        ini.Update(file, [&] { return std::vector{IniEdit{"Host", key, value}}; });
    }
    // Adds one to a number, again and again.
    void count(int times) const {
        SystemFiles files;
        SystemIniFile ini(files);
        for (int i = 0; i < times; ++i)
            ini.Update(file_, [&] {
                const int count = CInt16(ini.ReadString(file_, "Host", "Port", "0", 250));
                return std::vector{IniEdit{"Host", "Port", std::to_string(count + 1)}};
            });
    }

    TempFolder folder_;
    SystemFiles files_;
    SystemIniFile ini_{files_};
    std::string file_ = folder_.text() + "\\vell.ini";
};

TEST_F(IniFileTest, everyByteOfAValueSurvivesApartFromLineEnds) {
    EXPECT_EQ(read("Pwd"), "#NF#");
    std::string all = "x";
    for (int c = 1; c < 256; ++c)
        if (c != '\r' && c != '\n') all += static_cast<char>(c);
    all += 'x';
    write(ini_, file_, "Pwd", all);
    EXPECT_EQ(read("pwd", 1000), all);
    EXPECT_EQ(read("pwd", 250), all.substr(0, 249));
    EXPECT_EQ(SystemIniFile(files_).ReadString(file_, "HOST", "PWD", "", 1000), all);
    EXPECT_THROW(write(ini_, file_, "Uid", "a\r\nPwd=stolen"), RunTimeError);
    write(ini_, file_, "Pwd", std::nullopt);
    EXPECT_EQ(read("pwd"), "#NF#");
    EXPECT_TRUE(isPrivate(folder_.path() / "vell.ini"));
}

TEST_F(IniFileTest, valuesAreFoundAsThePrivateProfileCallsFindThem) {
    folder_.put("vell.ini",
                "stray=1\n[Host]\r\n ; Host=comment\r\n  HOST \t=  service.example  \r\nQuoted=\" a b \"\r\n"
                "Single='x'\r\nOpen=\"x\r\nEmpty=\r\nhost=second\r\nA=b=c;d\r\n\xC1\xFC=\xE1\r\n"
                "[host]\nLate=1\n[End]\nLast=half");
    for (const auto& [key, value] :
         std::initializer_list<std::pair<const char*, const char*>>{{"Host", "service.example"},
                                                                    {" quoted ", " a b "},
                                                                    {"Single", "x"},
                                                                    {"Open", "\"x"},
                                                                    {"Empty", ""},
                                                                    {"a", "b=c;d"},
                                                                    {"\xE1\xDC", "#NF#"},
                                                                    {"\xE1\xFC", "\xE1"},
                                                                    {"Late", "#NF#"},
                                                                    {"stray", "#NF#"}})
        EXPECT_EQ(read(key), value) << key;
    EXPECT_EQ(ini_.ReadString(file_, "end", "last", "", 250), "half");
}

TEST_F(IniFileTest, aFileThatAnotherHasChangedIsReadAgain) {
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

TEST_F(IniFileTest, aFileThatCannotBeReadOrWrittenIsLeftAlone) {
    std::filesystem::create_directory(folder_.path() / "vell.ini");
    EXPECT_THROW((void)read("Port"), RunTimeError) << "it is there, so it is not empty";
    EXPECT_THROW(write(ini_, file_, "Port", "80"), RunTimeError);
    EXPECT_THROW(write(ini_, folder_.text() + "\\gone\\vell.ini", "Port", "80"), RunTimeError);
}

TEST_F(IniFileTest, ofTwoWritersNoneLosesTheWorkOfTheOther) {
    constexpr int times = 25;
    {
        const std::jthread one([&] { count(times); }), another([&] { count(times); });
    }
    EXPECT_EQ(read("Port"), std::to_string(2 * times));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.path()), {}), 1) << "no lock stays behind";
}

}  // namespace
}  // namespace vell::test
