// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "service/DownloadList.h"
#include "tests/support/ServiceRig.h"

namespace vell::test {
namespace {

class DownloadListTest : public testing::Test, protected ServiceRig {
  protected:
    DownloadListTest() {
        setup.Uid = "ann";
        setup.Pwd = "a&b=\xE1";
    }
    bool get(const std::string& answer) {
        service.Answers[ServicePeer::listScript] = HttpPeer::ok(answer);
        return list.GetDownloadFiles();
    }
    [[nodiscard]] std::string files_() const {
        std::string text;
        for (const auto& entry : downloads.gDownloadList)
            text += entry.FileName + "=" + std::to_string(entry.Size) + entry.Transfer + ";";
        return text;
    }
    [[nodiscard]] std::string form(std::size_t request) const {
        const std::string sent = service.requests().at(request);
        return sent.substr(sent.find("\r\n\r\n") + 4);
    }
};

TEST_F(DownloadListTest, asksForTheDayAndStoresWhatTheServiceLists) {
    putIntoDay("ALLFILES.DIR", "A.PDF||N||T||C||Y||1||d||1||2||3\r\nGONE.PDF||N\r\n\r\n");
    putIntoDay("GONE.TXT", "x");
    ASSERT_TRUE(
        get("a.pdf||n||\xDC||c||y||1||-||10||20||30<BR>b.pdf||n||t||c||y||1||-||x||-5||99999999999<br>c.pdf||"));
    EXPECT_EQ(form(0),
              "username=ann&password=a&b=\xE1&dd1=07&mm1=03&yyyy1=2004&dd2=07&mm2=03&yyyy2=2004&"
              "vellVersion=2.1.37");
    EXPECT_EQ(inDay("ALLFILES.DIR"),
              "A.PDF||N||\xC1||C||Y||1||d||10||20||30\r\nB.PDF||N||T||C||Y||1||-||X||-5||99999999999\r\nC.PDF||\r\n");
    EXPECT_EQ(
        files_(),
        "ADVERTISMENT.JPG=17855;A.PDF=10;A.TXT=20;A.MT=30;B.PDF=0;B.TXT=0;B.MT=2147483647;C.PDF=0;C.TXT=0;C.MT=0;");
    EXPECT_EQ(downloads.gTotalBytes, 2147483707);
    EXPECT_EQ(downloads.gClippingsCount, 3);
    EXPECT_FALSE(dayHas("GONE.TXT"));
    EXPECT_EQ(status, "Getting list of files to download: Done");
    EXPECT_TRUE(boxes.Shown.empty());
}

TEST_F(DownloadListTest, takesWhateverTheServiceAnswers) {
    const std::string old = "A.PDF||N||T||C||Y||1||d\r\n\r\n";
    const std::string bad = "        A record of the list was dropped, it names no file of a clipping: '";
    const std::string none = "        The answer is no list of clippings: '";
    const struct {
        std::string answer;
        bool result;
        std::string index;
        bool keepsArticle;
        int clippings;
        std::string told;
    } table[] = {
        {"", true, "", true, 0, ""},
        {"  ", true, "", true, 0, ""},
        {"<br><br>", true, "", true, 0, ""},
        {"error 1002", true, "\r\n", false, 0, ""},
        {"ERROR 1003", false, old, true, 0, none + "ERROR 1003'\n"},
        {"<html><br>no</html>", false, old, true, 0, none + "<HTML>'\n"},
        {"A.PDF", false, old, true, 0, bad + "A.PDF'\n"},
        {"A.PDF||", true, "A.PDF||\r\n", true, 1, ""},
        {"A.PDF||N||T||C||Y||1||-||1e999||1e-999||1e5", true, "A.PDF||N||T||C||Y||1||d||1E999||1E-999||1E5\r\n", true,
         1, ""},
        {"..\\B.PDF||<br>A.PDF||<br>||N<br>c:x||<br>CON.PDF||<br>allfiles.dir||<br>", true, "A.PDF||\r\n\r\n", true, 1,
         bad + "CON.PDF||'\n"},
        {std::string("A\0.PDF||<br>A.PDF||\0<br>", 24), true, std::string("A.PDF||\0\r\n\r\n", 12), true, 1, bad},
    };
    for (const auto& row : table) {
        putIntoDay("ALLFILES.DIR", old);
        putIntoDay("A.PDF", "x");
        logged();
        EXPECT_EQ(get(row.answer), row.result) << row.answer;
        EXPECT_EQ(inDay("ALLFILES.DIR"), row.index) << row.answer;
        EXPECT_EQ(dayHas("A.PDF"), row.keepsArticle) << row.answer;
        EXPECT_EQ(downloads.gClippingsCount, row.clippings) << row.answer;
        EXPECT_NE(logged().find(row.told), std::string::npos) << row.answer;
    }
    const std::string answers[] = {"HTTP/1.0 500 No\r\n\r\nB.PDF||",
                                   "HTTP/1.0 200 OK\r\nContent-Length: 99\r\n\r\nB.PDF||", ""};
    for (const auto& answer : answers) {
        putIntoDay("ALLFILES.DIR", old);
        service.Answers[ServicePeer::listScript] = {answer};
        EXPECT_FALSE(list.GetDownloadFiles());
        EXPECT_EQ(inDay("ALLFILES.DIR"), old) << answer;
    }
}

TEST_F(DownloadListTest, survivesAnAnswerOfFiftyMegabytesWithoutALineEnd) {
    log.Stop();
    EXPECT_TRUE(get("A.PDF||" + std::string(50'000'000, '<')));
    EXPECT_EQ(downloads.gClippingsCount, 1);
}

TEST_F(DownloadListTest, asksForAnotherPasswordForAsLongAsTheUserWishes) {
    setup.Debug = 1;
    boxes.Answers = {Answer::Ok, Answer::Ok, Answer::Cancel};
    onSetup = [&] { setup.Uid += "2"; };
    EXPECT_FALSE(get("error 1001<br>"));
    EXPECT_FALSE(dayHas("ALLFILES.DIR"));
    EXPECT_EQ(service.requests().size(), 3U);
    EXPECT_TRUE(form(2).starts_with("username=ann22&"));
    const std::string question =
        "Incorrect username/password combination: Please enter a correct username/password "
        "combination.";
    EXPECT_EQ(boxes.Shown, (std::vector<std::string>{"error 1001<br>", question, "error 1001<br>", question,
                                                     "error 1001<br>", question}));
    boxes.Answers = {Answer::Ok};
    onSetup = [&] { service.Answers[ServicePeer::listScript] = HttpPeer::ok("A.PDF||"); };
    EXPECT_TRUE(list.GetDownloadFiles());
}

TEST_F(DownloadListTest, storesTheAlertOnlyWhenThereIsOne) {
    const struct {
        HttpPeer::Answer answer;
        bool result;
        std::string stored;
    } table[] = {
        {HttpPeer::ok("  Strike \xE1\r\ntoday "), true, "Strike \xE1\r\ntoday\r\n"},
        {HttpPeer::ok("   "), false, "old"},
        {HttpPeer::status("404 Not Found", "", "x"), false, "old"},
    };
    for (const auto& row : table) {
        putIntoDay("ALERT.MSG", "old");
        service.Answers[ServicePeer::alertScript] = row.answer;
        EXPECT_EQ(list.GetAlert(), row.result);
        EXPECT_EQ(inDay("ALERT.MSG"), row.stored);
    }
    EXPECT_EQ(form(0), "dd=07&mm=03&yyyy=2004");
}

}  // namespace
}  // namespace vell::test
