// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "service/DownloadList.h"
#include "service/ListMerge.h"
#include "tests/support/ServiceRig.h"

namespace vell::test {

class DownloadListTest : public testing::Test, protected ServiceRig {
  protected:
    DownloadListTest() {
        setup.Uid = "ann";
        setup.Pwd = "a&b=\xE1";
    }
    bool getFiles(const std::string& answer) {
        service.Answers[ServicePeer::listScript] = HttpPeer::ok(answer);
        return list.GetDownloadFiles();
    }
    [[nodiscard]] std::string form(std::size_t request) const {
        const std::string sent = service.requests().at(request);
        return sent.substr(sent.find("\r\n\r\n") + 4);
    }
    static std::string joined(const std::vector<std::string>& pieces) {
        std::string text;
        for (const std::string& piece : pieces)
            text += piece + ";";
        return text;
    }
};

TEST_F(DownloadListTest, makesRecordsOfAnAnswer) {
    for (const auto& [answer, records] : std::initializer_list<std::pair<const char*, const char*>>{
             {"a.pdf||n<br>b.pdf<BR>c<bR>", "A.PDF||N;B.PDF;C;;"},
             {"  a b  ", "A B;"},
             {"   ", ""},
             {"<br>", ";;"},
             {"a<b<br/><br", "A<B<BR/><BR;"},
             {"\xDC\xDD\xDE\xDF\xFC\xFD\xFE\xFA\xFB\xF2", "\xC1\xC5\xC7\xC9\xCF\xD5\xD9\xC9\xD5\xD3;"},
             {"\xA2\xB8\xB9\xBA\xBC\xBE\xBF\xDA\xDB\xC0\xE0", "\xC1\xC5\xC7\xC9\xCF\xD5\xD9\xC9\xD5\xC0\xE0;"}})
        EXPECT_EQ(joined(answerRecords(answer)), records) << answer;
}

TEST_F(DownloadListTest, carriesMarksOverAndNamesWhatHasGone) {
    const struct {
        std::string records, old, merged, gone;  // records and lines end at ";"
    } table[] = {
        {"A||N||T||C||Y||1||-||9", "A||n||t||c||y||1||d||8;;", "A||N||T||C||Y||1||d||9;", ""},
        {"A||N||T||C||Y||2||-||9", "A||n||t||c||y||1||d||8;", "A||N||T||C||Y||2||-||9;", ""},
        {"A||N||T||C||Y||1||-||9", "A||n||t||c||y||1||-||8;", "A||N||T||C||Y||1||-||9;", ""},
        {"A||N||T||C||Y||1||-||-||", "A||n||t||c||y||1||d", "A||N||T||C||Y||1||d||-||;", ""},
        {"B||;C||", "A||;B||;BB||;C||;D||", "B||;C||;", "A;BB;D;"},
        {"A||;B||;D||", "B||;C||", "A||;B||;D||;", "C;"},
        {"", "A||;;B||;", "", "A;B;"},
        {"B||;A||", "A||;B||", "B||;A||;", ""},  // out of order: nothing goes that is still listed
        {"C||;A||", "A||;B||", "C||;A||;", "B;"},
        {"\xC1||", "Z||;\xC1||", "\xC1||;", "Z;"},  // by byte, and bytes have no sign
        {"A||;A||", "A||", "A||;A||;", ""},
    };
    for (const auto& row : table) {
        const auto pieces = Split(row.records, ";");
        const Merged merged = mergeWithIndex({pieces.begin(), pieces.end()}, Replace(row.old, ";", "\r\n"));
        EXPECT_EQ(joined(merged.Records), row.merged) << row.old;
        EXPECT_EQ(joined(merged.GoneFiles), row.gone) << row.old;
    }
}

TEST_F(DownloadListTest, asksForTheDayAndStoresWhatTheServiceLists) {
    put("ALLFILES.DIR", "A.PDF||N||T||C||Y||1||d||1||2||3\r\nGONE.PDF||N\r\n\r\n");
    put("GONE.TXT", "x");
    ASSERT_TRUE(
        getFiles("a.pdf||n||\xDC||c||y||1||-||10||20||30<BR>b.pdf||n||t||c||y||1||-||x||-5||99999999999<br>"
                 "c.pdf||"));
    EXPECT_EQ(form(0),
              "username=ann&password=a&b=\xE1&dd1=07&mm1=03&yyyy1=2004&dd2=07&mm2=03&yyyy2=2004&"
              "vellVersion=2.1.37");
    EXPECT_EQ(get("ALLFILES.DIR"),
              "A.PDF||N||\xC1||C||Y||1||d||10||20||30\r\nB.PDF||N||T||C||Y||1||-||X||-5||99999999999\r\nC.PDF||\r\n");
    std::string fetched;
    for (const auto& entry : downloads.gDownloadList)
        fetched += entry.FileName + "=" + std::to_string(entry.Size) + entry.Transfer + ";";
    EXPECT_EQ(fetched,
              "ADVERTISMENT.JPG=17855;A.PDF=10;A.TXT=20;A.MT=30;B.PDF=0;B.TXT=0;B.MT=2147483647;C.PDF=0;"
              "C.TXT=0;C.MT=0;");
    EXPECT_EQ(downloads.gTotalBytes, 2147483707);
    EXPECT_EQ(downloads.gClippingsCount, 3);
    EXPECT_FALSE(has("GONE.TXT"));
    EXPECT_EQ(status + boxes.Shown, "Getting list of files to download: Done");
}

TEST_F(DownloadListTest, takesWhateverTheServiceAnswers) {
    const std::string old = "A.PDF||N||T||C||Y||1||d\r\n\r\n", none = "        The answer is no list of clippings: '",
                      bad = "        A record of the list was dropped, it names no file of a clipping: '";
    const struct {
        std::string answer, index, told;  // the index of a refused answer is the old one
        bool keepsArticle = true;
    } table[] = {
        {"", "", ""},
        {"<br><br>", "", ""},
        {"error 1002", "\r\n", "", false},
        {"ERROR 1003", old, none + "ERROR 1003'\n"},
        {"<html><br>no</html>", old, none + "<HTML>'\n"},
        {"A.PDF", old, bad + "A.PDF'\n"},
        {"A.PDF||N||T||C||Y||1||-||1e999||1e-999", "A.PDF||N||T||C||Y||1||d||1E999||1E-999\r\n", ""},
        {"..\\B.PDF||<br>A.PDF||<br>||N<br>c:x||<br>CON.PDF||<br>", "A.PDF||\r\n\r\n", bad + "CON.PDF||'\n"},
        {std::string("A\0.PDF||<br>A.PDF||\0<br>", 24), std::string("A.PDF||\0\r\n\r\n", 12), bad},
        {"A.PDF||" + std::string(50'000'000, '<'), "A.PDF||" + std::string(50'000'000, '<') + "\r\n", ""},
    };
    for (const auto& row : table) {
        put("ALLFILES.DIR", old);
        put("A.PDF", "x");
        logged();
        if (row.answer.size() > 1000) log.Stop();
        EXPECT_EQ(getFiles(row.answer), row.index != old) << row.told;
        EXPECT_TRUE(get("ALLFILES.DIR") == row.index) << row.told;
        EXPECT_EQ(has("A.PDF"), row.keepsArticle) << row.told;
        EXPECT_NE(logged().find(row.told), std::string::npos) << row.told;
    }
    for (const char* answer : {"HTTP/1.0 500 No\r\n\r\nB||", "HTTP/1.0 200 OK\r\nContent-Length: 99\r\n\r\nB||", ""}) {
        put("ALLFILES.DIR", old);
        service.Answers[ServicePeer::listScript] = {answer};
        EXPECT_FALSE(list.GetDownloadFiles());
        EXPECT_EQ(get("ALLFILES.DIR"), old) << answer;
    }
}

TEST_F(DownloadListTest, asksForAnotherPasswordForAsLongAsTheUserWishes) {
    setup.Debug = 1;
    boxes.Answers = {Answer::Ok, Answer::Cancel};
    onSetup = [&] { setup.Uid += "2"; };
    EXPECT_FALSE(getFiles("error 1001<br>"));
    EXPECT_FALSE(has("ALLFILES.DIR"));
    EXPECT_EQ(service.requests().size(), 2U);
    EXPECT_TRUE(form(1).starts_with("username=ann2&"));
    const std::string shown =
        "error 1001<br>|Incorrect username/password combination: Please enter a correct "
        "username/password combination.|";
    EXPECT_EQ(boxes.Shown, shown + shown);
    boxes.Answers = {Answer::Ok};
    onSetup = [&] { service.Answers[ServicePeer::listScript] = HttpPeer::ok("A.PDF||"); };
    EXPECT_TRUE(list.GetDownloadFiles());
}

TEST_F(DownloadListTest, storesTheAlertOnlyWhenThereIsOne) {
    const std::tuple<HttpPeer::Answer, bool, std::string> table[] = {
        {HttpPeer::ok("  Strike \xE1\r\ntoday "), true, "Strike \xE1\r\ntoday\r\n"},
        {HttpPeer::ok("   "), false, "old"},
        {HttpPeer::status("404 Not Found", "", "x"), false, "old"}};
    for (const auto& [answer, result, stored] : table) {
        put("ALERT.MSG", "old");
        service.Answers[ServicePeer::alertScript] = answer;
        EXPECT_EQ(list.GetAlert(), result);
        EXPECT_EQ(get("ALERT.MSG"), stored);
    }
    EXPECT_EQ(form(0), "dd=07&mm=03&yyyy=2004");
}

}  // namespace vell::test
