// SPDX-License-Identifier: MIT
#include <csignal>
#include <ctime>
#include <fstream>
#include <iterator>
#include <map>

#include <gmock/gmock.h>

#include "base/Date.h"
#include "base/text.h"
#include "tests/demo/DemoService.h"

namespace vell::test {
namespace {

namespace fs = std::filesystem;

Date today() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    localtime_r(&now, &parts);
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday};
}

std::string listOf(const DemoService& service, const Date& date) {
    std::string form = "username=demo&password=demo";
    const std::string name = date.folderName();
    for (const std::string n : {"1", "2"})
        form += "&dd" + n + "=" + name.substr(0, 2) + "&mm" + n + "=" + name.substr(2, 2) + "&yyyy" + n + "=" +
                name.substr(4);
    return post(service.http(), "/vell/vellClipsToDownload.asp", form).Body;
}

std::string bytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return rest(stream);
}

TEST(DemoSampleDaysTest, areTheSamplesUnderTheNamesOfThreeDaysWithAnEmptyOneBetween) {
    const TempFolder folder;
    const Date now = today();
    const DemoService service(folder);
    if (today() != now) GTEST_SKIP() << "midnight has just passed";
    EXPECT_THAT(listOf(service, now.plusDays(-1)), testing::StartsWith("ERROR 1002"));
    std::size_t pages = 0;
    for (const auto& [sample, back] : std::map<std::string, int>{{"first", 0}, {"second", -2}, {"third", -3}}) {
        const std::string day = now.plusDays(back).folderName();
        const std::string suffix = "_" + day.substr(4) + day.substr(2, 2) + day.substr(0, 2);
        const fs::path samples = fs::path(VELL_DEMO_SAMPLES) / sample;
        const std::string list = listOf(service, now.plusDays(back));
        for (const auto& entry : fs::directory_iterator(samples / "pdf")) {
            const std::string base = entry.path().stem().string(), name = day + "/" + base + suffix;
            EXPECT_THAT(list, testing::HasSubstr(base + suffix + ".PDF||"));
            EXPECT_EQ(folder.get(name + ".PDF"), bytesOf(entry.path())) << name;
            EXPECT_EQ(folder.get(name + ".TXT"), bytesOf(samples / "txt" / (base + ".TXT")));
            EXPECT_THAT(folder.get(name + ".MT"), testing::StartsWith("FILE: " + base + suffix + ".PDF\r\nDATE: "));
            ++pages;
        }
        pages -= Split(list, "<br>").size();
    }
    EXPECT_EQ(pages, 0U) << "as many are listed as there are";
    EXPECT_EQ(folder.get("ADVERTISMENT.JPG"), bytesOf(fs::path(VELL_DEMO_SAMPLES) / "ADVERTISMENT.JPG"));
}

TEST(DemoSampleDaysTest, moveWithTheCalendarButLeaveWhatAPersonHasChanged) {
    const TempFolder folder;
    const std::string day = today().folderName();
    DemoService(folder).stop(SIGTERM);
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
    DemoService(folder).stop(SIGTERM);
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
    const DemoService service(tree);
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(tree.path()))
        names.push_back(entry.path().filename());
    EXPECT_THAT(names,
                testing::UnorderedElementsAre("07032004", "09032004", "ADVERTISMENT.JPG", "upload", "users.tsv"));
}

}  // namespace
}  // namespace vell::test
