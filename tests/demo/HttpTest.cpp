// SPDX-License-Identifier: MIT
#include <csignal>

#include <gmock/gmock.h>

#include "base/text.h"
#include "tests/demo/DemoService.h"

namespace vell::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

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
    DemoService service_{tree_};
};

TEST_F(DemoHttpTest, listsTheClippingsOfADayInTheOrderOfTheirNamesInCodePage1253) {
    const auto answer = post(service_.http(), listScript, days("07", "07"));
    EXPECT_THAT(answer.Head, HasSubstr("windows-1253"));
    EXPECT_EQ(answer.Body, "NEA01_20040307.PDF||The Lantern||" + cp("Άνεμος & wind") + "||ECONOMY|||.||7||-" +
                               sizesOf("NEA01_20040307") + "<br>NEA02_20040307.PDF||" + cp("Το Κύμα") + "||.||" +
                               cp("ΟΙΚΟΝΟΜΙΑ|ΠΟΛΙΤΙΚΗ||ΑΡΘΡΟ") + "||3||-" + sizesOf("NEA02_20040307"));
}

TEST_F(DemoHttpTest, answersEveryKindOfListAndAlertRequest) {
    const std::string alertScript = "/sources.asp";
    const struct {
        std::string Script, Form;
        int Status;
        std::string Begin;
        std::size_t Records;
    } cases[] = {
        {listScript, days("08", "08"), 200, "ERROR 1002 ", 1},
        {listScript, days("07", "09"), 200, "NEA01_20040307.PDF||", 4},
        {listScript, days("09", "09"), 200, "NEA01_20040309.PDF||" + cp("Το Κύμα") + "||.||.||.||.||-||", 2},
        {listScript, days("07", "07", "username=demo&password=Demo"), 200, "ERROR 1001 ", 1},
        {listScript, days("07", "07", "username=odd&password=a&b=c%41+d"), 200, "NEA01_", 2},
        {listScript, days("07", "07", "username=odd&password=a%26b%3Dc%2541%2bd"), 200, "NEA01_", 2},
        {listScript, days("07", "07", cp("username=Άννα&password=μυστικό")), 200, "NEA01_", 2},
        {listScript, days("07", "07", "username=%A2%ed%ed%e1&password=%ec%f5%f3%f4%e9%ea%fc"), 200, "NEA01_", 2},
        {listScript, days("32", "32"), 400, "", 1},
        {alertScript, "dd=07&mm=03&yyyy=2004", 200, cp("Προσοχή\r\n"), 1},
        {alertScript, "dd=09&mm=03&yyyy=2004", 200, "", 0},
        {alertScript, "dd=30&mm=02&yyyy=2004", 400, "", 1},
    };
    for (const auto& c : cases) {
        const auto answer = post(service_.http(), c.Script, c.Form);
        EXPECT_EQ(answer.Status, c.Status) << c.Form;
        EXPECT_THAT(answer.Body, StartsWith(c.Begin)) << c.Form;
        EXPECT_EQ(Split(answer.Body, "<br>").size(), c.Records) << c.Form;
    }
    EXPECT_EQ(get(service_.http(), listScript).Status, 405);
}

TEST_F(DemoHttpTest, takesAnEditAtOnceAndTellsAtItsStartWhatItLeavesOut) {
    tree_.putClipping("08032004", "NEW1");
    tree_.put("08032004/clippings.tsv",
              "file\ttitle\tcategory\nNEW1.PDF\tone<BR>two||three\t||A||B\nGONE.PDF\tno file\t\n../X.PDF\tno name\t\n"
              "NEW1.TXT\tno page\t\n");
    EXPECT_EQ(list(days("08", "08")), "NEW1.PDF||.||one two|three|||A|B||.||.||-" + sizesOf("NEW1"));
    EXPECT_THAT(DemoService(tree_).stop(SIGTERM).Errors,
                HasSubstr("08032004/clippings.tsv, line 3: there is no file GONE.PDF"));
    std::filesystem::remove(tree_.path() / "08032004/NEW1.TXT");
    EXPECT_THAT(list(days("08", "08")), HasSubstr("||0||"));
    tree_.put("users.tsv", "user\tpassword\nann\t1\n");
    EXPECT_THAT(list(days("08", "08")), StartsWith("ERROR 1001"));
}

TEST_F(DemoHttpTest, servesTheFilesOfTheTablesUnderBothAddressesAndNothingElse) {
    tree_.put("07032004/OTHER_20040307.PDF", "not in the table");
    const struct {
        const char* Address;
        int Status;
        const char* File;
    } cases[] = {
        {"/archive/2004/03/07/NEA01_20040307.PDF", 200, "NEA01_20040307.PDF"},
        {"/archive/2004/03/07/NEA01%5f20040307.MT?x=1", 200, "NEA01_20040307.MT"},
        {"/archive/2004/03/09/NEA01_20040307.PDF", 404, ""},
        {"/archive/2004/03/07/OTHER_20040307.PDF", 404, ""},
        {"/archive/2004/03/07/clippings.tsv", 404, ""},
        {"/clippings/X.PDF", 200, "X.PDF"},
        {"HTTP://clips.example:80/clippings/X.MT", 200, "X.MT"},  // as its own proxy
        {"/clippings/users.tsv", 404, ""},
        {"/archive/RTIS/ME/NT/ADVERTISMENT.JPG", 200, "ADVERTISMENT.JPG"},
        {"/users.tsv", 404, ""},
        {"/archive/2004/03/07/../../../users.tsv", 400, ""},
        {"/clippings/..%5cusers.tsv", 400, ""},
        {"/clippings/X.PDF%00.TXT", 400, ""},
    };
    for (const auto& c : cases) {
        const auto answer = get(service_.http(), c.Address);
        EXPECT_EQ(answer.Status, c.Status) << c.Address;
        EXPECT_EQ(answer.Status == 200 ? answer.Body : "", contentOf(c.File)) << c.Address;
    }
    EXPECT_EQ(post(service_.http(), "/clippings/X.PDF", "").Status, 405);
    EXPECT_EQ(post(service_.http(), "/vell/vellUpdate.asp", "vellVersion=1.0.0&platform=linux-x86_64").Body,
              "No update\r\n");
}

TEST_F(DemoHttpTest, answersOneRequestAfterAnotherHoweverTheirBytesCome) {
    auto stream = streamTo(service_.http());
    for (const char c : std::string("\r\nGET /clippings/X.MT HTTP/1.1\r\nHost: x\r\n\r\n"))
        stream << c << std::flush;
    stream << "HEAD /clippings/X.PDF HTTP/1.1\nHost: x\n\n"
           << "POST /sources.asp HTTP/1.0\r\nConnection: Keep-Alive\r\nContent-Length: 21\r\n\r\ndd=07&mm=03&yyyy=2004"
           << "GET /clippings/X.TXT HTTP/1.1\r\nHost: x\r\nConnection: TE, close\r\n\r\nGET /none" << std::flush;
    const std::string length = "Content-Length: " + std::to_string(contentOf("X.PDF").size()) + "\r\n";
    EXPECT_THAT(rest(stream),
                testing::AllOf(HasSubstr(contentOf("X.MT") + "HTTP/1.1 200 "), HasSubstr(length),
                               testing::Not(HasSubstr("X.PDF")), HasSubstr(cp("Προσοχή\r\nHTTP/1.1 200 ")),
                               testing::EndsWith(contentOf("X.TXT"))));
    EXPECT_EQ(stream.error(), asio::error::eof) << "it is not closed";
}

TEST_F(DemoHttpTest, refusesWhatIsNoRequestAndClosesOnlyAfterItsAnswerCanBeRead) {
    const std::string megabyte(1 << 20, 'x');
    const std::pair<std::string, int> cases[] = {
        {"\x16\x03\x01 garbage\r\n\r\n", 400},
        {"GET / HTTP/1.1\r\n\r\n", 400},
        {"POST /sources.asp HTTP/1.0\r\nContent-Length: 99999999999999999999\r\n\r\n", 400},
        {"POST /sources.asp HTTP/1.0\r\nContent-Length: 1048576\r\n\r\n" + megabyte, 413},
        {"GET / HTTP/1.0\r\nX: " + megabyte, 431},
    };
    for (const auto& [request, status] : cases)
        EXPECT_EQ(answerTo(service_.http(), request).Status, status) << request.substr(0, 80);
    for (const char* begin : {"", "GET /cli", "POST /sources.asp HTTP/1.0\r\nContent-Length: 21\r\n\r\ndd="})
        streamTo(service_.http()) << begin << std::flush;  // and leaves
    EXPECT_EQ(get(service_.http(), "/clippings/X.MT").Body, contentOf("X.MT"));
    EXPECT_EQ(service_.stop(SIGTERM).Errors, "");
}

}  // namespace
}  // namespace vell::test
