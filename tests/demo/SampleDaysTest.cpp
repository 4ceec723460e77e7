// SPDX-License-Identifier: MIT
#include <algorithm>
#include <csignal>
#include <ctime>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include <gmock/gmock.h>

#include "base/Date.h"
#include "base/text.h"
#include "tests/demo/DemoProcess.h"
#include "tests/demo/FtpCaller.h"
#include "tests/demo/HttpCaller.h"
#include "tests/demo/SmallTree.h"

namespace vell::test {
namespace {

namespace fs = std::filesystem;

Date today() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    localtime_r(&now, &parts);
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday};
}

std::string listForm(const Date& first, const Date& last) {
    const auto day = [](const Date& date, const std::string& n) {
        const std::string name = date.folderName();
        return "&dd" + n + "=" + name.substr(0, 2) + "&mm" + n + "=" + name.substr(2, 2) + "&yyyy" + n + "=" +
               name.substr(4);
    };
    return "username=demo&password=demo" + day(first, "1") + day(last, "2") + "&vellVersion=1";
}

std::vector<std::string> fieldsOf(std::string_view record) {
    std::vector<std::string> fields;
    for (auto field : Split(record, "||"))
        fields.emplace_back(field);
    return fields;
}

TEST(DemoSampleDaysTest, fillAnEmptyFolderWithThreeDaysAndAnEmptyOneBetween) {
    const TempFolder folder;
    const Date day = today();
    const DemoProcess service(folder.path() / "new" / "tree");
    if (today() != day) GTEST_SKIP() << "midnight has just passed";
    const auto list = [&](int from, int to) {
        const std::string form = listForm(day.plusDays(from), day.plusDays(to));
        return post(service.http(), "/vell/vellClipsToDownload.asp", form).Body;
    };
    EXPECT_TRUE(list(-1, -1).starts_with("ERROR 1002"));
    std::size_t inRange = 0;
    std::set<std::string> titles, newspapers;
    for (int back : {0, -2, -3}) {
        const std::string answer = list(back, back);
        const auto records = Split(answer, "<br>");
        EXPECT_GE(records.size(), 12U);
        if (back > -3) inRange += records.size();
        EXPECT_TRUE(std::is_sorted(records.begin(), records.end()));
        for (auto record : records) {
            const auto fields = fieldsOf(record);
            ASSERT_EQ(fields.size(), 10U) << utf8FromCodePage(record);
            const std::string name = day.plusDays(back).folderName();
            const std::string dated = name.substr(4) + name.substr(2, 2) + name.substr(0, 2) + ".PDF";
            EXPECT_THAT(fields[0], testing::MatchesRegex("[A-Z]+[0-9]+_" + dated));
            EXPECT_EQ(fields[6], "-");
            for (std::size_t form = 7; form < 10; ++form)
                EXPECT_GT(std::stoul(fields[form]), 100U) << fields[0];
            titles.insert(fields[2]);
            newspapers.insert(fields[1]);
        }
    }
    EXPECT_EQ(Split(list(-2, 0), "<br>").size(), inRange);
    EXPECT_TRUE(titles.contains("."));
    EXPECT_TRUE(std::any_of(titles.begin(), titles.end(), [](const auto& title) { return title.size() > 100; }));
    EXPECT_GE(newspapers.size(), 6U);
}

std::string bytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(DemoSampleDaysTest, areTheSamplesUnderTheNamesOfTheirDays) {
    const TempFolder folder;
    const DemoProcess service(folder.path());
    int pages = 0;
    for (const auto& [sample, back] : std::map<std::string, int>{{"first", 0}, {"second", -2}, {"third", -3}}) {
        const std::string day = today().plusDays(back).folderName();
        const std::string suffix = "_" + day.substr(4) + day.substr(2, 2) + day.substr(0, 2);
        const fs::path samples = fs::path(VELL_DEMO_SAMPLES) / sample;
        for (const auto& entry : fs::directory_iterator(samples / "pdf")) {
            const std::string base = entry.path().stem().string(), name = day + "/" + base + suffix;
            EXPECT_EQ(folder.get(name + ".PDF"), bytesOf(entry.path())) << name;
            const std::string text = folder.get(name + ".TXT");
            EXPECT_EQ(text, bytesOf(samples / "txt" / (base + ".TXT")));
            EXPECT_EQ(codePageFromUtf8(text).has_value(), text.find_first_of("\xC1\xE1") == std::string::npos)
                << name << " is not in code page 1253";
            EXPECT_THAT(folder.get(name + ".MT"), testing::StartsWith("FILE: " + base + suffix + ".PDF\r\nDATE: "));
            ++pages;
        }
    }
    EXPECT_EQ(pages, 39);
    EXPECT_EQ(FtpCaller(service.ftp(), "demo", "demo").receive("RETR ADVERTISMENT.JPG"),
              bytesOf(fs::path(VELL_DEMO_SAMPLES) / "ADVERTISMENT.JPG"));
}

TEST(DemoSampleDaysTest, thatAreMissingAreAskedForAndLeaveNoHalfTree) {
    const TempFolder folder;
    const auto ended = run({VELL_DEMO_SERVICE, "--root", folder.text(), "--samples", folder.text() + "/none"});
    EXPECT_EQ(ended.ExitCode, 1);
    EXPECT_THAT(ended.Errors, testing::HasSubstr("--samples"));
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(DemoSampleDaysTest, moveWithTheCalendarButLeaveWhatAPersonHasChanged) {
    const TempFolder folder;
    const std::string day = today().folderName();
    DemoProcess(folder.path()).stop(SIGTERM);
    // As if that had been in 2004, and a person had changed one of its days since then.
    folder.put("05012004/old.PDF", "a sample");
    folder.put("06012004/clippings.tsv", "edited");
    folder.put("07012004/clippings.tsv", "never a sample");
    const std::string list = folder.get("sample-days.txt");
    folder.put("sample-days.txt", "05012004\r\n06012004\r\n");
    const auto made = fs::file_time_type::clock::now() - std::chrono::hours{2};
    fs::last_write_time(folder.path() / "sample-days.txt", made);
    for (const char* old : {"05012004/old.PDF", "05012004", "06012004"})
        fs::last_write_time(folder.path() / old, made - std::chrono::hours{1});
    folder.put(day + "/alert.txt", "edited");
    fs::remove_all(folder.path() / today().plusDays(-2).folderName());
    DemoProcess(folder.path()).stop(SIGTERM);
    if (today().folderName() != day) GTEST_SKIP() << "midnight has just passed";
    EXPECT_FALSE(folder.has("05012004"));
    EXPECT_EQ(folder.get("06012004/clippings.tsv"), "edited");
    EXPECT_TRUE(folder.has("07012004"));
    EXPECT_TRUE(folder.has(today().plusDays(-2).folderName() + "/clippings.tsv"));
    EXPECT_EQ(folder.get(day + "/alert.txt"), "edited");
    EXPECT_EQ(folder.get("sample-days.txt"), list);
}

TEST(DemoSampleDaysTest, neverComeIntoAPersonsOwnTree) {
    const SmallTree tree;
    const DemoProcess service(tree.path());
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(tree.path()))
        names.insert(entry.path().filename().string());
    EXPECT_EQ(names, (std::set<std::string>{"07032004", "09032004", "ADVERTISMENT.JPG", "upload", "users.tsv"}));
}

}  // namespace
}  // namespace vell::test
