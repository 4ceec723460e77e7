// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "service/modHTTP.h"
#include "tests/support/ServiceRig.h"

namespace vell::test {

class modHTTPTest : public testing::Test, protected ServiceRig {
  protected:
    bool download() { return http.HttpDownloadFile(name, day.gDayFolder + name, received); }

    const std::string name = "ABC20040307.PDF";
    std::int32_t received = -1;
};

TEST_F(modHTTPTest, asksForFilesUnderTheDayThatTheirNamesCarry) {
    for (const auto& [file, path] : std::initializer_list<std::pair<const char*, const char*>>{
             {"ABC20040307.PDF", "/archive/2004/03/07/ABC20040307.PDF"},
             {"x/y/ABC20040307.PDF", "/archive/2004/03/07/ABC20040307.PDF"},
             {"ADVERTISMENT.JPG", "/archive/RTIS/ME/NT/ADVERTISMENT.JPG"},
             {"1234.PDF", "/clippings/1234.PDF"},
             {"far/1234.PDF", "/clippings/far/1234.PDF"},
             {"12345.PDF", "/archive/1/23/45/12345.PDF"},
             {"NOEXTENSION", "/archive////NOEXTENSION"},
             {"", "/clippings/"}})
        EXPECT_EQ(BuildClippingUrl("h", file), std::string("http://h") + path);
    EXPECT_EQ(GetFileNamePart("ext", "A.B.PDF") + GetFileNamePart("x", "ABC20040307.PDF"), ".PDF");
}

TEST_F(modHTTPTest, tracesEveryStepOfAnExchange) {
    const std::string begin =
        "Start OpenUrl\n      Method:POST, Host:service.example, Scipt:/x.asp, PostData:a=1&b=\xE1\n"
        "InternetOpen function\n       SUCCESS\nInternetConnect function\n       SUCCESS\n"
        "HttpOpenRequest\n       SUCCESS\nHttpAddRequestHeaders function\n"
        "        Headers:Content-Type: application/x-www-form-urlencoded\n\n"
        "HttpSendRequest function\n        PostData:a=1&b=\xE1\n";
    const std::string yes = " OpenUrl Return Status: True\n", no = " OpenUrl Return Status: False\n";
    const std::string big(5000, '\xC1'), longHeaders = "HTTP/1.0 200 OK\r\nX: " + std::string(2000, 'x') + "\r\n";
    const struct {
        std::string headers, body, message, failure, result;
    } table[] = {
        {"HTTP/1.0 200 OK\r\nA: b\r\n", "one\r\ntwo", "", "", yes},
        {"HTTP/1.1 200 OK\r\n", "", "", "", yes},
        {"HTTP/1.0 200 OK\r\n", big, "", "", yes},
        {longHeaders, "x", "", "", yes},
        {"HTTP/1.0 500 No\r\n", "x", "Quillon Service not available. Please try again later.", "", no},
        {"HTTP/1.0 404 No\r\n", "x", "Quillon Service not accessible.\r\n\r\nHTTP/1.0 404 No\r\n", "", no},
        {"HTTP/1.0 200 OK\r\nContent-Length: 9\r\n", "x", "", "        The answer was cut short. Error 12030\n", no},
    };
    std::string body = "old", headers = "old";
    for (const auto& row : table) {
        service.Answers["/x.asp"] = {row.headers + "\r\n" + row.body};
        messages.clear();
        EXPECT_EQ(http.OpenUrl("POST", setup.Host, "/x.asp", "a=1&b=\xE1", body, headers), row.result == yes);
        EXPECT_EQ(body, row.body);
        EXPECT_EQ(headers, row.headers.substr(0, 1024));
        EXPECT_EQ(messages, row.message);
        EXPECT_EQ(logged(), begin + "InternetReadFile function loop\n" +
                                Replace("        Body:" + body + "\n        Headers:" + headers, "\r\n", "\n") + "\n" +
                                row.failure + row.result + row.result);
    }
    service.Answers["/x.asp"] = {""};
    EXPECT_FALSE(http.OpenUrl("POST", setup.Host, "/x.asp", "a=1&b=\xE1", body, headers));
    EXPECT_EQ(body + headers, "");
    EXPECT_EQ(logged(), begin + "        The service could not be reached. Error 12030\n" +
                            "InternetReadFile function loop\n        Body:\n        Headers:\n" + no);
    EXPECT_FALSE(http.OpenUrl("POST", "", "/x.asp", "a=1&b=\xE1", body, headers));
    EXPECT_TRUE(logged().ends_with("       SUCCESS\nInternetConnect function\n" + no));
    EXPECT_NE(service.requests().at(0).find("\r\nUser-Agent: VELL_2.1.37_user:ann\r\n"), std::string::npos);
}

TEST_F(modHTTPTest, aFileAppearsWholeOrNotAtAll) {
    const std::string big(5000, 'b');
    const struct {
        HttpPeer::Answer answer;
        std::string content, progress, log;  // content "-": no file
    } table[] = {
        {HttpPeer::ok("abc"), "abc", "3 3 ", ""},
        {HttpPeer::ok(big), big, "2048 4096 5000 5000 ", ""},
        {HttpPeer::ok(""), "", "0 ", ""},
        {HttpPeer::status("404 No", "", "<html>"), "-", "", "        The service answered with status 404\n"},
        {{"HTTP/1.0 200 OK\r\nContent-Length: 9\r\n\r\nabc"},
         "-",
         "3 3 ",
         "        The file was cut short. Error 12030\n"},
        {{""}, "-", "", "        The file is not available. Error 12030\n"},
        {HttpPeer::status("302 Found", "Location: ftp://x/y\r\n"), "-", "",
         "        The file is not available. Error 12006\n"},
        {HttpPeer::status("302 Found", "Location: /else\r\n"), "else", "4 4 ", ""},
    };
    service.Answers["/else"] = HttpPeer::ok("else");
    for (const auto& row : table) {
        service.Answers["/archive/2004/03/07/" + name] = row.answer;
        progress.clear();
        EXPECT_EQ(download(), row.content != "-") << row.log;
        EXPECT_EQ(has(name) ? get(name) : "-", row.content) << row.log;
        EXPECT_EQ(progress, row.progress) << row.log;
        EXPECT_EQ(logged(), row.log);
        if (has(name)) files.DeleteFile(day.gDayFolder + name);
    }
    EXPECT_EQ(status, "before File Not Available File Not Available");
    EXPECT_TRUE(std::filesystem::is_empty(folder.path() / "clips/07032004"));
}

TEST_F(modHTTPTest, asksForRoomUntilThereIsMoreThanTheFileNeeds) {
    service.Answers["/archive/2004/03/07/" + name] = HttpPeer::ok(std::string(3000, 'x'));
    std::deque<std::optional<std::uint64_t>> free{3000, 2999, std::nullopt, 3000, 3001};
    files.Free = [&] {
        const auto bytes = free.front();
        free.pop_front();
        return bytes;
    };
    boxes.Answers = {Answer::Retry, Answer::Cancel};
    EXPECT_FALSE(download() || has(name));
    const std::string question = "Not enough free space: Not enough free space available to save " + day.gDayFolder +
                                 name + ". Please free up at least 2 kb from your disk and click Retry|";
    EXPECT_EQ(boxes.Shown, question + question);
    boxes.Answers = {Answer::Retry, Answer::Retry};
    EXPECT_TRUE(download() && free.empty());
    EXPECT_TRUE(http.HttpDownloadFile(name, "/" + day.gDayFolder + name, received));  // a network path: nobody asks
    files.Trouble = "ABC";
    files.Free = nullptr;
    EXPECT_FALSE(download());
    EXPECT_EQ(get(name), std::string(3000, 'x'));
    EXPECT_TRUE(logged().ends_with(" in HttpDownloadFile()\n"));
}

}  // namespace vell::test
