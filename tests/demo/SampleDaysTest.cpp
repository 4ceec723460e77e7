// SPDX-License-Identifier: MIT
#include <algorithm>
#include <csignal>
#include <ctime>
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

// Every reference of the table, and every length of a stream, has to lead where it says.
void expectSoundPdf(const std::string& name, const std::string& pdf) {
    ASSERT_TRUE(pdf.starts_with("%PDF-1.4\n") && pdf.ends_with("\n%%EOF\n")) << name;
    const std::size_t table = std::stoul(pdf.substr(pdf.rfind("startxref\n") + 10));
    ASSERT_EQ(pdf.substr(table, 7), "xref\n0 ") << name;
    const std::size_t count = std::stoul(pdf.substr(table + 7));
    const std::size_t first = pdf.find('\n', table + 5) + 1;
    for (std::size_t i = 1; i < count; ++i) {
        const std::string begin = std::to_string(i) + " 0 obj\n";
        const std::size_t offset = std::stoul(pdf.substr(first + 20 * i, 10));
        ASSERT_EQ(pdf.substr(offset, begin.size()), begin) << name;
        const std::string head = pdf.substr(offset, pdf.find_first_of('\n', offset + begin.size()) - offset);
        const auto length = head.find("/Length ");
        if (length == std::string::npos) continue;
        const std::size_t end = offset + head.size() + 8 + std::stoul(head.substr(length + 8));  // 8: "\nstream\n"
        ASSERT_EQ(pdf.substr(end, 17), "\nendstream\nendobj") << name << " object " << i;
    }
    EXPECT_NE(pdf.find("/Type /Pages /Count 1 "), std::string::npos) << name;
    EXPECT_EQ(pdf.find("nan"), std::string::npos) << name;
}

void expectJpeg(const std::string& jpeg) {
    ASSERT_TRUE(jpeg.starts_with("\xFF\xD8\xFF\xE0") && jpeg.ends_with("\xFF\xD9"));
    std::set<unsigned char> kinds;
    std::size_t at = 2;
    for (unsigned char kind = 0; kind != 0xDA; at += 2) {
        ASSERT_EQ(jpeg[at], '\xFF');
        kind = static_cast<unsigned char>(jpeg[at + 1]);
        kinds.insert(kind);
        at += static_cast<unsigned char>(jpeg[at + 2]) * 256U + static_cast<unsigned char>(jpeg[at + 3]);
    }
    EXPECT_EQ(kinds, (std::set<unsigned char>{0xE0, 0xDB, 0xC0, 0xC4, 0xDA}));
    for (std::size_t i = jpeg.find('\xFF', at); i < jpeg.size() - 2; i = jpeg.find('\xFF', i + 1))
        ASSERT_EQ(jpeg[i + 1], '\0') << "a marker within the picture";
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

TEST(DemoSampleDaysTest, holdRealPdfPagesTextsAndAPicture) {
    const TempFolder folder;
    const DemoProcess service(folder.path());
    std::uintmax_t smallest = UINTMAX_MAX, largest = 0;
    int pages = 0, greekPages = 0, pictures = 0;
    for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
        const std::string name = fs::relative(entry.path(), folder.path()).string();
        const std::string bytes = entry.is_regular_file() ? folder.get(name) : "";
        if (name.ends_with(".PDF")) {
            expectSoundPdf(name, bytes);
            ++pages;
            greekPages += bytes.find("/ToUnicode") != std::string::npos;
            smallest = std::min(smallest, entry.file_size());
            largest = std::max(largest, entry.file_size());
            const auto picture = bytes.find("\xFF\xD8\xFF\xE0");
            if (picture == std::string::npos) continue;
            ++pictures;
            expectJpeg(bytes.substr(picture, bytes.find("\nendstream", picture) - picture));
        } else if (name.ends_with(".TXT")) {
            EXPECT_EQ(codePageFromUtf8(bytes).has_value(), bytes.find_first_of("\xC1\xE1") == std::string::npos)
                << name << " is not in code page 1253";
        } else if (name.ends_with(".MT")) {
            const std::string pdf = fs::path(name).stem().string() + ".PDF";
            EXPECT_TRUE(bytes.starts_with("FILE: " + pdf + "\r\nDATE: ")) << name;
        }
    }
    EXPECT_GE(pages, 36);
    EXPECT_GE(greekPages, pages / 2);
    EXPECT_LT(greekPages, pages);
    EXPECT_GE(pictures, pages / 3);
    EXPECT_LT(smallest, 20'000U);
    EXPECT_GT(largest, 100'000U);
    EXPECT_LT(largest, 220'000U);
    expectJpeg(folder.get("ADVERTISMENT.JPG"));
    EXPECT_EQ(FtpCaller(service.ftp(), "demo", "demo").receive("RETR ADVERTISMENT.JPG"),
              folder.get("ADVERTISMENT.JPG"));
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
