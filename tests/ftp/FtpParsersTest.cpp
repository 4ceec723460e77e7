// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "ftp/FtpErrors.h"
#include "ftp/FtpListing.h"
#include "ftp/FtpReplyReader.h"
#include "ftp/PassiveReply.h"

namespace vell {
namespace {

using namespace std::string_view_literals;
using testing::ElementsAreArray;

TEST(FtpReplyReaderTest, givesTheSameRepliesHoweverTheBytesAreCut) {
    struct Case {
        std::string_view Bytes;
        std::vector<std::string_view> Texts;
    };
    const std::vector<Case> cases{
        {"150 Opening\r\n226 Done\r\n", {"150 Opening", "226 Done"}},
        {"230-Hello\r\n 230 no\r\n2300 no\r\n226 no\r\n230-no\r\n230 In\r\n200 x\r\n",
         {"230-Hello\r\n 230 no\r\n2300 no\r\n226 no\r\n230-no\r\n230 In", "200 x"}},
        {"211-\r\n\r\n211\r\n", {"211-\r\n\r\n211"}},
        {"220-a\n220 b\n", {"220-a\n220 b"}},
        {"200 \0\xFF\r\nhello\r\n\r\n226"sv, {"200 \0\xFF"sv, "hello", ""}},
    };
    for (const auto& [bytes, texts] : cases) {
        for (std::size_t piece = 1; piece <= bytes.size(); ++piece) {
            FtpReplyReader reader;
            std::vector<std::string> read;
            for (std::size_t at = 0; at < bytes.size(); at += piece) {
                reader.feed(bytes.substr(at, piece));
                while (const auto reply = reader.next()) {
                    EXPECT_EQ(reply->Code, GetReplyCode(reply->Text));
                    read.push_back(reply->Text);
                }
            }
            EXPECT_THAT(read, ElementsAreArray(texts)) << "in pieces of " << piece;
        }
    }
}

TEST(FtpReplyReaderTest, cutsAReplyWithoutAnEnd) {
    FtpReplyReader reader;
    reader.feed("220-" + std::string(FtpReplyReader::longest, 'x'));
    EXPECT_FALSE(reader.next());
    EXPECT_TRUE(reader.overlong());
    reader.feed("\r\n220 end\r\n");
    EXPECT_FALSE(reader.next());
    EXPECT_EQ(reader.pending().size(), FtpReplyReader::longest);
}

TEST(FtpReplyReaderTest, readsACodeFromThreeDigitsOnly) {
    for (const auto& [text, code] : std::vector<std::pair<std::string_view, int>>{
             {"226 x", 226}, {"226", 226}, {"22", 0}, {"", 0}, {"2 6 x", 0}, {"-26", 0}, {" 226", 0}})
        EXPECT_EQ(GetReplyCode(text), code) << text;
}

TEST(FtpErrorsTest, numbersReplyCodesAndKeepsWhatHasNoTextOfItsOwn) {
    struct Case {
        int Code;
        bool Known;
        int Number;
        std::string_view Text;
    };
    for (const Case& c : std::vector<Case>{
             {226, true, 7, "before"},
             {110, true, 7, "before"},
             {257, true, 7, "before"},
             {599, false, 7, "before"},
             {0, false, 7, "before"},
             {331, true, 38, "before"},
             {332, true, 39, "before"},
             {350, true, 40, "before"},
             {421, true, 41, "Service not available, closing control connection."},
             {426, true, 43, "Connection closed; transfer aborted."},
             {450, true, 46, "Requested file action not taken."},
             {451, true, 45, "Requested action aborted: local error in processing."},
             {452, true, 46, "Requested action not taken. Insufficient storage space in system."},
             {501, true, 48, "Syntax error in parameters or arguments."},
             {553, true, 57, "Requested action not taken. File name not allowed."},
         }) {
        FtpErrors errors;
        errors.MapSocketError(10054, "before");
        EXPECT_EQ(errors.CheckReplyCode(c.Code), c.Known) << c.Code;
        EXPECT_EQ(errors.number(), c.Number) << c.Code;
        EXPECT_EQ(errors.text(), c.Text) << c.Code;
    }
}

TEST(FtpErrorsTest, numbersSocketErrorsByTheirNames) {
    FtpErrors errors;
    for (const auto& [code, number] : std::vector<std::pair<int, int>>{
             {10048, 0}, {10053, 5}, {10061, 6}, {11001, 9}, {7, 27}, {10060, 33}, {40026, 36}}) {
        EXPECT_TRUE(errors.MapSocketError(code, "text"));
        EXPECT_EQ(errors.number(), number) << code;
    }
    EXPECT_FALSE(errors.MapSocketError(12345, "another"));
    EXPECT_EQ(errors.number(), 36);
    EXPECT_EQ(errors.text(), "another");
}

TEST(PassiveReplyTest, takesSixBytesBetweenBracketsAndNothingElse) {
    for (const auto& [reply, host, port] : std::vector<std::tuple<std::string_view, std::string_view, int>>{
             {"227 Entering Passive Mode (10,0,0,5,19,137)", "10.0.0.5", 5001},
             {"227 (127,0,0,1,255,255).", "127.0.0.1", 65535},
             {"227 Entering Passive Mode", "", 0},
             {"227 ok (1,2,3,4,5)", "", 0},
             {"227 ok (1,2,3,4,5,6,7)", "", 0},
             {"227 ok (256,0,0,1,4,4)", "", 0},
             {"227 ok (a,0,0,1,4,4)", "", 0},
             {"227 ok (10,0,0,5,0,0)", "", 0},
             {"227 ok )10,0,0,5,19,137(", "", 0},
         }) {
        const auto address = parsePassiveReply(reply).value_or(PassiveAddress{});
        EXPECT_EQ(address.Host, host) << reply;
        EXPECT_EQ(address.Port, port) << reply;
    }
}

std::string shown(const CFtpFile& file) {
    return (file.IsDirectory ? "d|" : "-|") + file.FileName + "|" + std::to_string(file.FileSize) + "|" +
           (file.LastWriteTime.Day == Date{} ? "" : file.LastWriteTime.logText()) + "|" + file.FilePath + "|" +
           file.Permissions + "|" + file.owner + "|" + file.Group;
}

TEST(FtpListingTest, readsEveryLineByItsForm) {
    for (const auto& [line, expected] : std::vector<std::pair<std::string, std::string>>{
             {"", ""},
             {"total 12", ""},
             {"Total 12", ""},
             {"-rw-r--r-- 1 ftp ftp 4096 Mar 7 2003 a.pdf", "-|a.pdf|4096|07/03/2003 00:00:00||-rw-r--r--|ftp|ftp"},
             {"-rw-r--r--   1 ftp  grp      10 Mar  7 10:30 total.pdf",
              "-|total.pdf|10|07/03/2004 00:00:00||-rw-r--r--|ftp|grp"},
             {"-rw-r--r-- 1 ftp ftp 5 Jan 1 2004 my file.pdf", "-|my|5|01/01/2004 00:00:00||-rw-r--r--|ftp|ftp"},
             {"drwxr-xr-x 2 ftp ftp 4096 Dec 31 10:30 clips", "d|clips|4096|31/12/2004 00:00:00||drwxr-xr-x|ftp|ftp"},
             {"drwxr-xr-x 2 ftp ftp 4096 Jan 5 10:30 .", ""},
             {"drwxr-xr-x 2 ftp ftp 4096 Jan 5 10:30 ..", ""},
             {"lrwxrwxrwx 1 root root 7 Jan 1 2000 web -> /var/www",
              "d|web|7|01/01/2000 00:00:00|/var/www|lrwxrwxrwx|root|root"},
             {"lrwxrwxrwx 1 root root 7 Jan 1 2000 web -> /x.d/a.pdf",
              "-|web|7|01/01/2000 00:00:00|/x.d/a.pdf|lrwxrwxrwx|root|root"},
             {"lrwxrwxrwx 1 root root 7 Jan 1 2000 web -> /x.d/a",
              "d|web|7|01/01/2000 00:00:00|/x.d/a|lrwxrwxrwx|root|root"},
             {"-rw-r--r-- 1 o g 99999999999 Feb 30 2003 a", "-|a|0|||-rw-r--r--|o|g"},
             {"-rw-r--r-- 1 o g x jan 7 2003 a", "-|a|0|||-rw-r--r--|o|g"},
             {"01-15-04  10:30AM       <DIR>          My Clips", "d|My Clips|0|15/01/2004 10:30:00||||"},
             {"01-15-04 12:05AM 2048 a  b.pdf", "-|a b.pdf|2048|15/01/2004 00:05:00||||"},
             {"12-31-1999 12:05PM 1 a", "-|a|1|31/12/1999 12:05:00||||"},
             {"12-31-99 23:59 1 a", "-|a|1|31/12/1999 23:59:00||||"},
             {"01-15-04 10:30AM <DIR> .", "d|.|0|15/01/2004 10:30:00||||"},
             {"13-15-04 10:30AM many a", "-|a|0|||||"},
             {"word", "-||0|||||"},
         }) {
        std::string read;
        for (const auto& file : ParseListing(line + "\r\n", 2004))
            read += shown(*file);
        EXPECT_EQ(read, expected) << line;
    }
}

TEST(FtpListingTest, keepsTheOrderOfTheLinesAndCollapsesLongRunsOfBlanks) {
    const auto files =
        ParseListing("01-15-04 10:30AM 1 b" + std::string(40, ' ') + "b\r\ntotal 3\r\n01-15-04 10:30AM 2 a", 2004);
    ASSERT_EQ(files.Count(), 2);
    EXPECT_EQ(files.Item(1)->FileName, "b b");
    EXPECT_EQ(files.Item(2)->FileName, "a");
}

}  // namespace
}  // namespace vell
