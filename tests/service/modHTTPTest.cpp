// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "service/modHTTP.h"
#include "tests/support/ServiceRig.h"

namespace vell::test {
namespace {

TEST(ClippingUrlTest, isMadeOfTheDayThatTheNameCarries) {
    const std::pair<const char*, const char*> table[] = {
        {"ABC20040307.PDF", "/archive/2004/03/07/ABC20040307.PDF"},
        {"x/y/ABC20040307.PDF", "/archive/2004/03/07/ABC20040307.PDF"},
        {"ADVERTISMENT.JPG", "/archive/RTIS/ME/NT/ADVERTISMENT.JPG"},
        {"1234.PDF", "/clippings/1234.PDF"},
        {"far/1234.PDF", "/clippings/far/1234.PDF"},
        {"12345.PDF", "/archive/1/23/45/12345.PDF"},
        {"NOEXTENSION", "/archive////NOEXTENSION"},
        {"", "/clippings/"},
    };
    for (const auto& [name, path] : table)
        EXPECT_EQ(BuildClippingUrl("h", name), std::string("http://h") + path);
    EXPECT_EQ(GetFileNamePart("ext", "A.B.PDF"), ".PDF");
    EXPECT_EQ(GetFileNamePart("x", "ABC20040307.PDF"), "");
}

class modHTTPTest : public testing::Test, protected ServiceRig {
  protected:
    bool openUrl() { return http.OpenUrl("POST", setup.Host, "/x.asp", "a=1&b=\xE1", body, headers); }
    bool download(const std::string& name = "ABC20040307.PDF") {
        return http.HttpDownloadFile(name, day.gDayFolder + name, received);
    }

    std::string body = "old";
    std::string headers = "old";
    std::int32_t received = -1;
};

TEST_F(modHTTPTest, tracesEveryStepOfAnExchange) {
    const std::string begin =
        "Start OpenUrl\n      Method:POST, Host:service.example, Scipt:/x.asp, PostData:a=1&b=\xE1\n"
        "InternetOpen function\n       SUCCESS\nInternetConnect function\n       SUCCESS\n"
        "HttpOpenRequest\n       SUCCESS\nHttpAddRequestHeaders function\n"
        "        Headers:Content-Type: application/x-www-form-urlencoded\n\n"
        "HttpSendRequest function\n        PostData:a=1&b=\xE1\n";
    const std::string yes = " OpenUrl Return Status: True\n";
    const std::string no = " OpenUrl Return Status: False\n";
    const std::string lost = "Quillon Service not available. Please try again later.";
    const std::string longHeader = "X: " + std::string(2000, 'x');
    const struct {
        std::string answer, body, headers, message, failure, result;
    } table[] = {
        {"HTTP/1.0 200 OK\r\nA: b\r\n\r\none\r\ntwo", "one\r\ntwo", "HTTP/1.0 200 OK\r\nA: b\r\n", "", "", yes + yes},
        {"HTTP/1.1 200 OK\r\n\r\n", "", "HTTP/1.1 200 OK\r\n", "", "", yes + yes},
        {"HTTP/1.0 200 OK\r\n\r\n" + std::string(5000, '\xC1'), std::string(5000, '\xC1'), "HTTP/1.0 200 OK\r\n", "",
         "", yes + yes},
        {"HTTP/1.0 500 No\r\n\r\nx", "x", "HTTP/1.0 500 No\r\n", lost, "", no + no},
        {"HTTP/1.0 404 Not Found\r\n\r\nx", "x", "HTTP/1.0 404 Not Found\r\n",
         "Quillon Service not accessible.\r\n\r\nHTTP/1.0 404 Not Found\r\n", "", no + no},
        {"HTTP/1.0 200 OK\r\nContent-Length: 9\r\n\r\nx", "x", "HTTP/1.0 200 OK\r\nContent-Length: 9\r\n", "",
         "        The answer was cut short. Error 12030\n", no + no},
        {"HTTP/1.0 200 OK\r\n" + longHeader + "\r\n\r\nx", "x", ("HTTP/1.0 200 OK\r\n" + longHeader).substr(0, 1024),
         "", "", yes + yes},
    };
    for (const auto& row : table) {
        service.Answers["/x.asp"] = {row.answer};
        messages.clear();
        EXPECT_EQ(openUrl(), row.result == yes + yes) << row.answer;
        EXPECT_EQ(body, row.body);
        EXPECT_EQ(headers, row.headers);
        EXPECT_EQ(messages, row.message.empty() ? std::vector<std::string>{} : std::vector{row.message});
        EXPECT_EQ(logged(), begin + "InternetReadFile function loop\n        Body:" + Replace(row.body, "\r\n", "\n") +
                                "\n        Headers:" + Replace(row.headers, "\r\n", "\n") + "\n" + row.failure +
                                row.result);
    }
    service.Answers["/x.asp"] = {""};
    EXPECT_FALSE(openUrl());
    EXPECT_EQ(body + headers, "");
    EXPECT_EQ(logged(), begin + "        The service could not be reached. Error 12030\n" +
                            "InternetReadFile function loop\n        Body:\n        Headers:\n" + no);
    setup.Host.clear();
    EXPECT_FALSE(openUrl());
    EXPECT_TRUE(logged().ends_with("       SUCCESS\nInternetConnect function\n" + no));
    EXPECT_TRUE(service.requests().at(0).find("\r\nUser-Agent: VELL_2.1.37_user:ann\r\n") != std::string::npos);
}

TEST_F(modHTTPTest, aFileAppearsWholeOrNotAtAll) {
    const std::string big(5000, 'b');
    const struct {
        HttpPeer::Answer answer;
        std::string content;  // "-": no file
        std::int32_t bytes;
        std::string log;
    } table[] = {
        {HttpPeer::ok("abc"), "abc", 3, ""},
        {HttpPeer::ok(big), big, 5000, ""},
        {HttpPeer::ok(""), "", 0, ""},
        {HttpPeer::status("404 Not Found", "", "<html>"), "-", 0, "        The service answered with status 404\n"},
        {HttpPeer::status("500 No"), "-", 0, "        The service answered with status 500\n"},
        {{"HTTP/1.0 200 OK\r\nContent-Length: 10\r\n\r\nabc"}, "-", 3, "        The file was cut short. Error 12030\n"},
        {{""}, "-", 0, "        The file is not available. Error 12030\n"},
        {HttpPeer::status("302 Found", "Location: ftp://x/y\r\n"), "-", 0,
         "        The file is not available. Error 12006\n"},
        {HttpPeer::status("302 Found", "Location: /else\r\n"), "else", 4, ""},
    };
    service.Answers["/else"] = HttpPeer::ok("else");
    for (const auto& row : table) {
        service.Answers["/archive/2004/03/07/ABC20040307.PDF"] = row.answer;
        progress.clear();
        EXPECT_EQ(download(), row.content != "-") << row.log;
        EXPECT_EQ(dayHas("ABC20040307.PDF") ? inDay("ABC20040307.PDF") : "-", row.content) << row.log;
        EXPECT_EQ(received, row.bytes);
        EXPECT_EQ(logged(), row.log);
        if (row.content == big) {
            EXPECT_EQ(progress, (std::vector<std::int32_t>{2048, 4096, 5000, 5000}));
        } else if (row.bytes > 0) {
            EXPECT_EQ(progress, (std::vector<std::int32_t>{row.bytes, row.bytes}));
        }
        std::filesystem::remove(folder.path() / "clips/07032004/ABC20040307.PDF");
    }
    EXPECT_EQ(status, "before File Not Available File Not Available");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path() / "clips/07032004"), {}), 0);
}

TEST_F(modHTTPTest, asksForRoomUntilThereIsMoreThanTheFileNeeds) {
    service.Answers["/archive/2004/03/07/ABC20040307.PDF"] = HttpPeer::ok(std::string(3000, 'x'));
    std::vector<std::optional<std::uint64_t>> free{3001, 3000, std::nullopt, 2999, 3000};
    files.Free = [&] {
        const auto bytes = free.back();
        free.pop_back();
        return bytes;
    };
    boxes.Answers = {Answer::Retry, Answer::Cancel};
    EXPECT_FALSE(download());
    EXPECT_FALSE(dayHas("ABC20040307.PDF"));
    const std::string question = "Not enough free space: Not enough free space available to save " + day.gDayFolder +
                                 "ABC20040307.PDF. Please free up at least 2 kb from your disk and click Retry";
    EXPECT_EQ(boxes.Shown, (std::vector<std::string>{question, question}));
    boxes.Answers = {Answer::Retry, Answer::Retry};
    EXPECT_TRUE(download());
    EXPECT_TRUE(free.empty());
    const std::string network = "/" + day.gDayFolder + "ABC20040307.PDF";
    EXPECT_TRUE(http.HttpDownloadFile("ABC20040307.PDF", network, received));
    boxes.Shown.clear();
    files.Trouble = "ABC";
    files.Free = nullptr;
    EXPECT_FALSE(download());
    EXPECT_EQ(inDay("ABC20040307.PDF"), std::string(3000, 'x'));
    EXPECT_TRUE(logged().ends_with(" in HttpDownloadFile()\n"));
}

}  // namespace
}  // namespace vell::test
