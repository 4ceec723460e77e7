// SPDX-License-Identifier: MIT
#include <chrono>

#include <gtest/gtest.h>

#include "base/text.h"
#include "tests/demo/DemoProcess.h"
#include "tests/demo/HttpCaller.h"
#include "tests/demo/SmallTree.h"

namespace vell::test {
namespace {

constexpr const char* listScript = "/vell/vellClipsToDownload.asp";

std::string cp(std::string_view utf8) {
    return codePageFromUtf8(utf8).value();
}

// The form of a client that asks for the days from one to another, "dd" of March 2004.
std::string days(const std::string& from, const std::string& to,
                 const std::string& who = "username=demo&password=demo") {
    return who + "&dd1=" + from + "&mm1=03&yyyy1=2004&dd2=" + to + "&mm2=03&yyyy2=2004&vellVersion=2.1.37";
}

std::string sizesOf(const std::string& base) {
    std::string sizes;
    for (const char* ending : {".PDF", ".TXT", ".MT"})
        sizes += "||" + std::to_string(contentOf(base + ending).size());
    return sizes;
}

class DemoHttpTest : public testing::Test {
  protected:
    std::string list(const std::string& form) { return post(service_.http(), listScript, form).Body; }

    SmallTree tree_;
    DemoProcess service_{tree_.path()};
};

TEST_F(DemoHttpTest, listsTheClippingsOfADayInTheOrderOfTheirNamesInCodePage1253) {
    const auto reply = post(service_.http(), listScript, days("07", "07"));
    EXPECT_EQ(reply.Status, 200);
    EXPECT_NE(reply.Head.find("windows-1253"), std::string::npos);
    EXPECT_EQ(reply.Body, "NEA01_20040307.PDF||The Lantern||" + cp("Άνεμος & wind") + "||ECONOMY|||.||7||-" +
                              sizesOf("NEA01_20040307") + "<br>NEA02_20040307.PDF||" + cp("Το Κύμα") + "||.||" +
                              cp("ΟΙΚΟΝΟΜΙΑ|ΠΟΛΙΤΙΚΗ||ΑΡΘΡΟ") + "||3||-" + sizesOf("NEA02_20040307"));
}

TEST_F(DemoHttpTest, answersEveryKindOfListRequest) {
    const struct {
        std::string Form, Begin;
        int Records;
    } cases[] = {
        {days("08", "08"), "ERROR 1002 ", 1},
        {days("07", "09"), "NEA01_20040307.PDF||", 4},
        {days("09", "07"), "ERROR 1002 ", 1},
        {days("09", "09"), "NEA01_20040309.PDF||" + cp("Το Κύμα") + "||.||.||.||.||-||", 2},
        {days("07", "07", "username=demo&password=Demo"), "ERROR 1001 ", 1},
        {days("07", "07", "username=&password="), "ERROR 1001 ", 1},
        {days("07", "07", "password=demo&username=demo"), "NEA01_", 2},
        {days("07", "07", "username=odd&password=a&b=c%41+d"), "NEA01_", 2},
        {days("07", "07", "username=odd&password=a%26b%3Dc%2541%2bd"), "NEA01_", 2},
        {days("07", "07", cp("username=Άννα&password=μυστικό")), "NEA01_", 2},
        {days("07", "07", "username=%A2%ed%ed%e1&password=%ec%f5%f3%f4%e9%ea%fc"), "NEA01_", 2},
        {"", "ERROR 1001 ", 1},
    };
    for (const auto& c : cases) {
        const std::string answer = list(c.Form);
        EXPECT_TRUE(answer.starts_with(c.Begin)) << c.Form << " -> " << answer;
        EXPECT_EQ(Split(answer, "<br>").size(), static_cast<std::size_t>(c.Records)) << c.Form;
    }
    EXPECT_EQ(post(service_.http(), listScript, days("31", "31")).Status, 200);
    EXPECT_EQ(post(service_.http(), listScript, days("32", "32")).Status, 400);
    EXPECT_EQ(post(service_.http(), listScript, "username=demo&password=demo").Status, 400);
    EXPECT_EQ(get(service_.http(), listScript).Status, 405);
}

TEST_F(DemoHttpTest, takesAnEditAtOnceAndKeepsItsCellsFromBreakingTheRecord) {
    tree_.putClipping("08032004", "NEW1");
    tree_.put("08032004/clippings.tsv",
              "file\ttitle\tcategory\nNEW1.PDF\tone<BR>two||three\t||A||B\nGONE.PDF\tno file\t\n../X.PDF\tno name\t\n"
              "NEW1.TXT\tno page\t\n");
    EXPECT_EQ(list(days("08", "08")), "NEW1.PDF||.||one two|three|||A|B||.||.||-" + sizesOf("NEW1"));
    std::filesystem::remove(tree_.path() / "08032004/NEW1.TXT");
    EXPECT_NE(list(days("08", "08")).find("||0||"), std::string::npos);
    tree_.put("users.tsv", "user\tpassword\nann\t1\n");
    EXPECT_TRUE(list(days("08", "08")).starts_with("ERROR 1001"));
}

TEST_F(DemoHttpTest, tellsTheLinesOfATableThatItLeavesOut) {
    tree_.put("08032004/clippings.tsv", "file\ttitle\nGONE.PDF\tx\n");
    DemoProcess other(tree_.path());
    const Ended ended = other.stop(15);
    EXPECT_NE(ended.Errors.find("08032004/clippings.tsv, line 2: there is no file GONE.PDF"), std::string::npos)
        << ended.Errors;
}

TEST_F(DemoHttpTest, answersTheAlertOfADayOrNothing) {
    EXPECT_EQ(post(service_.http(), "/sources.asp", "dd=07&mm=03&yyyy=2004").Body, cp("Προσοχή\r\n"));
    const auto none = post(service_.http(), "/sources.asp", "dd=09&mm=03&yyyy=2004");
    EXPECT_EQ(none.Status, 200);
    EXPECT_EQ(none.Body, "");
    EXPECT_EQ(post(service_.http(), "/sources.asp", "dd=30&mm=02&yyyy=2004").Status, 400);
}

TEST_F(DemoHttpTest, servesTheFilesOfTheTablesUnderBothAddressesAndNothingElse) {
    tree_.put("07032004/OTHER_20040307.PDF", "not in the table");
    const struct {
        std::string Address;
        int Status;
        std::string File;
    } cases[] = {
        {"/archive/2004/03/07/NEA01_20040307.PDF", 200, "NEA01_20040307.PDF"},
        {"/archive/2004/03/07/NEA01_20040307.MT", 200, "NEA01_20040307.MT"},
        {"/ARCHIVE/2004/03/07/nea02_20040307.txt", 200, "NEA02_20040307.TXT"},
        {"/archive/2004/03/07/NEA01%5f20040307.PDF?x=1", 200, "NEA01_20040307.PDF"},
        {"/archive/2004/03/09/NEA01_20040307.PDF", 404, ""},
        {"/archive/2004/13/07/NEA01_20040307.PDF", 404, ""},
        {"/archive/2004/03/07/OTHER_20040307.PDF", 404, ""},
        {"/archive/2004/03/07/clippings.tsv", 404, ""},
        {"/archive/2004/03/07/alert.txt", 404, ""},
        {"/clippings/X.PDF", 200, "X.PDF"},
        {"/clippings/NEA01_20040307.TXT", 200, "NEA01_20040307.TXT"},
        {"/clippings/users.tsv", 404, ""},
        {"/archive/RTIS/ME/NT/ADVERTISMENT.JPG", 200, "ADVERTISMENT.JPG"},
        {"/archive/2004/03/07/advertisment.jpg", 200, "ADVERTISMENT.JPG"},
        {"/ADVERTISMENT.JPG", 404, ""},
        {"/users.tsv", 404, ""},
        {"/", 404, ""},
        {"/archive/2004/03/07/../../../users.tsv", 400, ""},
        {"/clippings/%2e%2e/users.tsv", 400, ""},
        {"/clippings/..%5cusers.tsv", 400, ""},
        {"/clippings/X.PDF%00.TXT", 400, ""},
        {"clippings/X.PDF", 400, ""},
    };
    for (const auto& c : cases) {
        const auto reply = get(service_.http(), c.Address);
        EXPECT_EQ(reply.Status, c.Status) << c.Address;
        EXPECT_TRUE(c.Status != 200 || reply.Body == contentOf(c.File)) << c.Address;
    }
    EXPECT_EQ(post(service_.http(), "/clippings/X.PDF", "").Status, 405);
    EXPECT_EQ(get(service_.http(), "/vell/vellUpdate.asp").Body, VELL_VERSION);
}

TEST_F(DemoHttpTest, isItsOwnProxyForAnyHost) {
    const Ended curl = run({"curl", "-sS", "-m", "20", "-0", "-x", "http://" + service_.http(), "-d", days("07", "07"),
                            std::string("http://clips.example") + listScript});
    EXPECT_EQ(curl.ExitCode, 0) << curl.Errors;
    EXPECT_EQ(curl.Out, list(days("07", "07")));
    EXPECT_EQ(get(service_.http(), "HTTP://clips.example:80/clippings/X.MT").Body, contentOf("X.MT"));
    EXPECT_EQ(get(service_.http(), "http://clips.example").Status, 404);
    EXPECT_EQ(get(service_.http(), "https://clips.example/clippings/X.MT").Status, 400);
}

TEST_F(DemoHttpTest, keepsAConnectionOrClosesItAsTheRequestAsks) {
    const struct {
        const char* Request;
        bool Keeps;
    } cases[] = {
        {"GET /clippings/X.MT HTTP/1.0\r\n\r\n", false},
        {"GET /clippings/X.MT HTTP/1.0\r\nConnection: Keep-Alive\r\n\r\n", true},
        {"GET /clippings/X.MT HTTP/1.0\r\nProxy-Connection: keep-alive\r\n\r\n", true},
        {"GET /clippings/X.MT HTTP/1.1\r\nHost: x\r\n\r\n", true},
        {"GET /clippings/X.MT HTTP/1.1\r\nHost: x\r\nConnection: TE, close\r\n\r\n", false},
        {"GET /none HTTP/1.1\r\nHost: x\r\n\r\n", true},
        {"GET /none HTTP/1.1\r\nHo st: x\r\n\r\n", false},
    };
    for (const auto& c : cases) {
        HttpCaller caller(service_.http());
        caller.send(c.Request);
        EXPECT_NE(caller.reply().Head.find(c.Keeps ? "keep-alive" : "close"), std::string::npos) << c.Request;
        if (!c.Keeps) {
            EXPECT_TRUE(caller.isClosed()) << c.Request;
            continue;
        }
        caller.send("HEAD /clippings/X.MT HTTP/1.1\r\nHost: x\r\nConnection: close\r\n\r\n");
        const auto head = caller.reply(false);
        EXPECT_NE(head.Head.find("Content-Length: " + std::to_string(contentOf("X.MT").size()) + "\r"),
                  std::string::npos);
        EXPECT_TRUE(caller.isClosed()) << c.Request;
    }
}

TEST_F(DemoHttpTest, takesRequestsInPiecesInOnePacketWithBareLineFeedsAndAfterAContinue) {
    HttpCaller caller(service_.http());
    for (char c : std::string("\r\nGET /clippings/X.MT HTTP/1.1\r\nHost: x\r\n\r\n"))
        caller.send({&c, 1});
    EXPECT_EQ(caller.reply().Body, contentOf("X.MT"));
    caller.send(
        "POST /sources.asp HTTP/1.1\nHost: x\nContent-Length: 21\n\ndd=07&mm=03&yyyy=2004"
        "GET /clippings/X.TXT HTTP/1.1\r\nHost: x\r\n\r\n");
    EXPECT_EQ(caller.reply().Body, cp("Προσοχή\r\n"));
    EXPECT_EQ(caller.reply().Body, contentOf("X.TXT"));
    caller.send("POST /sources.asp HTTP/1.1\r\nHost: x\r\nExpect: 100-continue\r\nContent-Length: 21\r\n\r\n");
    EXPECT_EQ(caller.reply().Status, 100);
    caller.send("dd=07&mm=03&yyyy=2004");
    EXPECT_EQ(caller.reply().Body, cp("Προσοχή\r\n"));
}

TEST_F(DemoHttpTest, refusesWhatIsNoRequestAndClosesOnlyAfterItsAnswerCanBeRead) {
    const std::string megabyte(1 << 20, 'x');
    const struct {
        std::string Request;
        int Status;
    } cases[] = {
        {"\x16\x03\x01 garbage\r\n\r\n", 400},
        {"GET /\r\n\r\n", 400},
        {"GET  / HTTP/1.1\r\nHost: x\r\n\r\n", 400},
        {"GET / HTTP/1.1\r\n\r\n", 400},
        {"GET / HTTP/2.0\r\nHost: x\r\n\r\n", 505},
        {"GET / HTTP/1.0\r\nno colon\r\n\r\n", 400},
        {"GET / HTTP/1.0\r\n: no name\r\n\r\n", 400},
        {"PUT / HTTP/1.0\r\n\r\n", 501},
        {"CONNECT clips.example:443 HTTP/1.1\r\nHost: x\r\n\r\n", 400},
        {"POST /sources.asp HTTP/1.0\r\nContent-Length: -1\r\n\r\n", 400},
        {"POST /sources.asp HTTP/1.0\r\nContent-Length: 5x\r\n\r\n", 400},
        {"POST /sources.asp HTTP/1.0\r\nContent-Length: 99999999999999999999\r\n\r\n", 400},
        {"POST /sources.asp HTTP/1.0\r\nContent-Length: 1\r\nContent-Length: 2\r\n\r\n", 400},
        {"POST /sources.asp HTTP/1.1\r\nHost: x\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n", 411},
        {"POST /sources.asp HTTP/1.0\r\nContent-Length: 1048576\r\n\r\n" + megabyte, 413},
        {"GET / HTTP/1.0\r\nX: " + megabyte, 431},
        {"GET /" + megabyte, 431},
    };
    for (const auto& c : cases) {
        HttpCaller caller(service_.http());
        caller.send(c.Request);
        EXPECT_EQ(caller.reply().Status, c.Status) << c.Request.substr(0, 80);
    }
    EXPECT_EQ(get(service_.http(), "/clippings/X.MT").Status, 200);
}

TEST_F(DemoHttpTest, goesOnAfterCallersThatLeaveInTheMiddle) {
    for (const char* begin : {"", "GET /cli", "POST /sources.asp HTTP/1.0\r\nContent-Length: 21\r\n\r\ndd="})
        HttpCaller(service_.http()).send(begin);
    EXPECT_EQ(get(service_.http(), "/clippings/X.MT").Body, contentOf("X.MT"));
    EXPECT_EQ(service_.stop(15).Errors, "");
}

TEST(DemoSlowLineTest, holdsAnswersAndTransfersBack) {
    const SmallTree tree;
    const std::string bytes(16'384, 'x');
    tree.put("07032004/NEA01_20040307.PDF", bytes);
    const DemoProcess service(tree.path(), {"--rate", "64", "--latency", "60"});
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(get(service.http(), "/archive/2004/03/07/NEA01_20040307.PDF").Body, bytes);
    const auto took = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(took, std::chrono::milliseconds{60 + 200});  // the pause after the last block need not be waited for
    EXPECT_LT(took, patience / 2);
}

}  // namespace
}  // namespace vell::test
