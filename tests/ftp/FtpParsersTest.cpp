// SPDX-License-Identifier: MIT
#include <algorithm>

#include <gmock/gmock.h>

#include "base/text.h"
#include "ftp/FtpErrors.h"
#include "ftp/control/FtpReplyReader.h"
#include "ftp/control/PassiveReply.h"
#include "ftp/listing/FtpListing.h"

namespace vell {
namespace {

using namespace std::string_view_literals;

TEST(FtpReplyReaderTest, givesTheSameRepliesHoweverTheBytesAreCut) {
    const auto bytes =
        "150 Opening\r\n226 Done\r\n230-Hello\r\n 230 no\r\n2300 no\r\n226 no\r\n230-no\r\n230 "
        "In\r\n211-\r\n\r\n211\r\n"
        "220-a\n220 b\n200 \0\xFF\r\nhello-\r\n\r\n226"sv;
    for (std::size_t piece = 1; piece <= bytes.size(); ++piece) {
        FtpReplyReader reader;
        std::vector<std::string> read;
        for (std::size_t at = 0; at < bytes.size(); at += piece) {
            reader.feed(bytes.substr(at, piece));
            while (auto reply = reader.next())
                read.push_back(reply->Text);
        }
        EXPECT_THAT(read, testing::ElementsAre("150 Opening", "226 Done",
                                               "230-Hello\r\n 230 no\r\n2300 no\r\n226 no\r\n230-no\r\n230 In",
                                               "211-\r\n\r\n211", "220-a\n220 b", "200 \0\xFF"sv, "hello-", ""))
            << "in pieces of " << piece;
    }
}

TEST(FtpErrorsTest, numbersCodesAndKeepsTheTextWhereTheyHaveNone) {
    FtpErrors errors;
    // clang-format off
    for (const auto& [code, known, number, text] : std::vector<std::tuple<int, bool, int, std::string_view>>{
             {226, true, 0, ""}, {110, true, 0, ""}, {257, true, 0, ""}, {599, false, 0, ""}, {0, false, 0, ""},
             {421, true, 41, "Service not available, closing control connection."},
             {331, true, 38, "Service not available, closing control connection."},
             {350, true, 40, "Service not available, closing control connection."},
             {450, true, 46, "Requested file action not taken."},
             {451, true, 45, "Requested action aborted: local error in processing."},
             {452, true, 46, "Requested action not taken. Insufficient storage space in system."},
             {501, true, 48, "Syntax error in parameters or arguments."},
             {553, true, 57, "Requested action not taken. File name not allowed."},
             {226, true, 57, "Requested action not taken. File name not allowed."},
         }) {
        EXPECT_EQ(errors.CheckReplyCode(code), known) << code;
        EXPECT_EQ(errors.number(), number) << code;
        EXPECT_EQ(errors.text(), text) << code;
    }
    for (const auto& [code, known, number] : std::vector<std::tuple<int, bool, int>>{
             {10048, true, 0}, {10053, true, 5}, {10061, true, 6}, {11001, true, 9}, {7, true, 27},
             {10060, true, 33}, {40026, true, 36}, {12345, false, 36}}) {
        EXPECT_EQ(errors.MapSocketError(code, std::to_string(code)), known) << code;
        EXPECT_EQ(errors.number(), number) << code;
        EXPECT_EQ(errors.text(), std::to_string(code));
    }
    // clang-format on
}

TEST(PassiveReplyTest, takesSixBytesBetweenBracketsAndNothingElse) {
    EXPECT_EQ(parsePassiveReply("227 Entering Passive Mode (10,0,0,5,19,137)")->Host, "10.0.0.5");
    EXPECT_EQ(parsePassiveReply("227 Entering Passive Mode (10,0,0,5,19,137).")->Port, 5001);
    for (const std::string_view bad :
         {"227 10,0,0,5,19,137", "(1,2,3,4,5)", "(1,2,3,4,5,6,7)", "(256,0,0,1,4,4)", "(a,0,0,1,4,4)", "(10,0,0,5,0,0)",
          ")10,0,0,5,19,137(", "(,,,,,)", "(1,2,3,4,5,-6)", ""})
        EXPECT_FALSE(parsePassiveReply(bad)) << bad;
}

std::vector<std::string> fields(const CFtpFile& file) {
    return {file.IsDirectory ? "d" : "-",
            file.FileName,
            std::to_string(file.FileSize),
            file.LastWriteTime.Day == Date{} ? "" : file.LastWriteTime.logText(),
            file.FilePath,
            file.Permissions,
            file.owner,
            file.Group};
}

TEST(FtpListingTest, readsEveryLineByItsForm) {
    // clang-format off
    for (const auto& [lines, expected] : std::vector<std::pair<std::string, std::string>>{
             {"", ""},
             {"total 12\r\nTotal 12\r\n\r\n", ""},
             {"-rw-r--r-- 1 ftp ftp 4096 Mar 7 2003 a.pdf", "-|a.pdf|4096|07/03/2003 00:00:00||-rw-r--r--|ftp|ftp"},
             {"-rw-r--r--   1 o  g      10 Mar  7 10:30 total.pdf", "-|total.pdf|10|07/03/2004 00:00:00||-rw-r--r--|o|g"},
             {"-rw-r--r-- 1 ftp ftp 5 Jan 1 2004 my file.pdf", "-|my|5|01/01/2004 00:00:00||-rw-r--r--|ftp|ftp"},
             {"drwx------ 2 o g 4096 Jan 5 10:30 .\r\ndrwx------ 2 o g 4096 Jan 5 10:30 ..", ""},
             {"drwx------ 2 o g 4096 Dec 31 10:30 clips", "d|clips|4096|31/12/2004 00:00:00||drwx------|o|g"},
             {"lrwxrwxrwx 1 o g 7 Jan 1 2000 web -> /var/www", "d|web|7|01/01/2000 00:00:00|/var/www|lrwxrwxrwx|o|g"},
             {"lrwxrwxrwx 1 o g 7 Jan 1 2000 web -> /x/a.pdf", "-|web|7|01/01/2000 00:00:00|/x/a.pdf|lrwxrwxrwx|o|g"},
             {"lrwxrwxrwx 1 o g 7 Jan 1 2000 web -> /x.d/a", "d|web|7|01/01/2000 00:00:00|/x.d/a|lrwxrwxrwx|o|g"},
             {"-rw-r--r-- 1 o g 99999999999 Feb 30 2003 a", "-|a|0|||-rw-r--r--|o|g"},
             {"-rw-r--r-- 1 o g x jan 7 2003 a", "-|a|0|||-rw-r--r--|o|g"},
             {"01-15-04  10:30AM       <DIR>          My Clips", "d|My Clips|0|15/01/2004 10:30:00||||"},
             {"01-15-04 12:05AM 2048 a" + std::string(40, ' ') + "b.pdf", "-|a b.pdf|2048|15/01/2004 00:05:00||||"},
             {"12-31-1999 12:05PM 1 a\r\ntotal\r\n12-31-99 23:59 1 b",
              "-|a|1|31/12/1999 12:05:00|||||-|b|1|31/12/1999 23:59:00||||"},
             {"01-15-04 10:30AM <DIR> .", "d|.|0|15/01/2004 10:30:00||||"},
             {"13-15-04 10:30AM many a", "-|a|0|||||"},
             {"word", "-||0|||||"},
         }) {
        // clang-format on
        std::vector<std::string> read;
        for (const auto& file : ParseListing(lines, 2004))
            std::ranges::move(fields(*file), std::back_inserter(read));
        EXPECT_THAT(read, testing::ElementsAreArray(Split(expected, "|"))) << lines;
    }
}

}  // namespace
}  // namespace vell
