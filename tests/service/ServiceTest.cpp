// SPDX-License-Identifier: MIT
#include <atomic>
#include <functional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/SystemTypes.h"
#include "service/DownloadList.h"
#include "service/Failure.h"
#include "service/RunFeedback.h"
#include "service/modHTTP.h"
#include "tests/support/FaultyFiles.h"
#include "tests/support/ServicePeer.h"
#include "tests/support/StoreRig.h"

namespace vell::test {

// The service's client, with real requests to a service on loopback.
class ServiceTest : public testing::Test, protected StoreRig, protected RunFeedback {
  protected:
    ServiceTest() {
        setup.Host = "service.example";
        setup.Uid = "ann";
        setup.Pwd = "a&b=\xE1";
        setup.AgentName = "VELL_2.1.37_user:ann";
        files.MakeFolder(day.gDayFolder);
    }
    void StatusBar(std::string_view text) override { status = text; }
    [[nodiscard]] std::string statusText() const override { return status; }
    void displayInfoMessageBox(std::string_view text) override { message = text; }
    void HTTPDownloadProgress(std::int32_t bytes) override { progress += std::to_string(bytes) + " "; }
    void failed(const Failure& why) override { failure = why; }
    void openSetup() override { onSetup(); }

    bool post() { return http.OpenUrl("POST", setup.Host, "/x.asp", "a=1&b=\xE1", body, headers); }
    // What came takes its place, as the run has it.
    bool download() { return download(name); }
    bool download(const std::string& file) {
        const auto part = files.OpenPart(day.gDayFolder + ".part");
        const bool whole = http.HttpDownloadFile(file, day.gDayFolder + file, *part, received);
        whole ? part->MoveTo(day.gDayFolder + file) : part->Discard();
        return whole;
    }
    bool getFiles(const std::string& answer) {
        service.Answers[ServicePeer::listScript] = HttpPeer::ok(answer);
        return list.GetDownloadFiles();
    }
    [[nodiscard]] std::string lastForm() const {
        const std::string sent = service.requests().back();
        return sent.substr(sent.find("\r\n\r\n") + 4);
    }

    const std::string name = "ABC20040307.PDF";
    ServicePeer service;
    SystemInternet internet{loop, clock};
    modHTTP http{internet, files, boxes, *this, log, setup};
    DownloadState downloads;
    DownloadList list{{http, store, files, boxes, *this, log, setup, day, downloads, "2.1.37"}};
    std::string status = "before", message, progress, body = "old", headers = "old";
    Failure failure;
    std::int32_t received = -1;
    std::function<void()> onSetup;
};

TEST_F(ServiceTest, asksForFilesUnderTheDayThatTheirNamesCarry) {
    for (const auto& [file, path] : std::initializer_list<std::pair<const char*, const char*>>{
             {"x/ABC20040307.PDF", "/archive/2004/03/07/ABC20040307.PDF"},
             {"ADVERTISMENT.JPG", "/archive/RTIS/ME/NT/ADVERTISMENT.JPG"},
             {"far/1234.PDF", "/clippings/far/1234.PDF"},
             {"12345.PDF", "/archive/1/23/45/12345.PDF"},
             {"NOEXTENSION", "/archive////NOEXTENSION"},
             {"", "/clippings/"},
             {"A#F.PDF", "/clippings/A%23F.PDF"},
             {"\xC1 %[?]20040307.PDF", "/archive/2004/03/07/%C1%20%25%5B%3F%5D20040307.PDF"}})
        EXPECT_EQ(BuildClippingUrl("h", file), std::string("http://h") + path);
    EXPECT_EQ(GetFileNamePart("ext", "A.B.PDF") + GetFileNamePart("x", name), ".PDF");
}

TEST_F(ServiceTest, tracesEveryStepOfAnExchange) {
    const std::string begin =
        "Start OpenUrl\n      Method:POST, Host:service.example, Scipt:/x.asp, PostData:a=1&b=\xE1\n"
        "InternetOpen function\n       SUCCESS\nInternetConnect function\n       SUCCESS\n"
        "HttpOpenRequest\n       SUCCESS\nHttpAddRequestHeaders function\n"
        "        Headers:Content-Type: application/x-www-form-urlencoded\n\n"
        "HttpSendRequest function\n        PostData:a=1&b=\xE1\n";
    const std::string yes = " OpenUrl Return Status: True\n", no = " OpenUrl Return Status: False\n";
    const std::string longHeaders = "HTTP/1.0 200 OK\r\nX: " + std::string(2000, 'x') + "\r\n";
    const struct {
        std::string headers, body, message, failure, result;
        Failure why{};
    } table[] = {
        {"HTTP/1.0 200 OK\r\nA: b\r\n", "one\r\ntwo", "", "", yes},
        {"HTTP/1.1 200 OK\r\n", "", "", "", yes, {}},
        {longHeaders, std::string(60000, '\xC1'), "", "", yes, {}},
        {"HTTP/1.0 500 No\r\n",
         "x",
         "Quillon Service not available. Please try again later.",
         "",
         no,
         {Cause::ServiceStatus, "500 No"}},
        {"HTTP/1.0 404 No\r\n",
         "x",
         "Quillon Service not accessible.\r\n\r\nHTTP/1.0 404 No\r\n",
         "",
         no,
         {Cause::ServiceStatus, "404 No"}},
        {"HTTP/1.0 200 OK\r\nContent-Length: 9\r\n",
         "x",
         "",
         "        The answer was cut short. Error 12030\n",
         no,
         {Cause::ConnectionLost, setup.Host}},
    };
    for (const auto& row : table) {
        service.Answers["/x.asp"] = {row.headers + "\r\n" + row.body};
        message.clear();
        failure = {};
        EXPECT_EQ(post(), row.result == yes);
        EXPECT_EQ(body, row.body);
        EXPECT_EQ(headers, row.headers.substr(0, 1024));
        EXPECT_EQ(message, row.message);
        EXPECT_EQ(failure, row.why);
        const std::string told = "        Body:" + body + "\n        Headers:" + headers;
        EXPECT_EQ(logged(), begin + "InternetReadFile function loop\n" + Replace(told, "\r\n", "\n") + "\n" +
                                row.failure + row.result + row.result);
    }
    service.Answers["/x.asp"] = {""};
    EXPECT_FALSE(post());
    EXPECT_THAT((std::vector{body, headers}), testing::Each(""));
    EXPECT_EQ(logged(), begin + "        The service could not be reached. Error 12030\n" +
                            "InternetReadFile function loop\n        Body:\n        Headers:\n" + no);
    EXPECT_NE(service.requests().back().find("\r\nUser-Agent: VELL_2.1.37_user:ann\r\n"), std::string::npos);
    setup.Host.clear();
    EXPECT_FALSE(post());
    EXPECT_TRUE(logged().ends_with("       SUCCESS\nInternetConnect function\n" + no));
}

TEST_F(ServiceTest, aFileAppearsWholeOrNotAtAll) {
    service.Answers["/else"] = HttpPeer::ok("else");
    const struct {
        HttpPeer::Answer answer;
        std::string content, progress, log;  // content "-": no file
    } table[] = {
        {HttpPeer::ok(std::string(5000, 'b')), std::string(5000, 'b'), "2048 4096 5000 5000 ", ""},
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
    for (const auto& row : table) {
        service.Answers[ServicePeer::pathOf(name)] = row.answer;
        progress.clear();
        EXPECT_EQ(download(), row.content != "-") << row.log;
        EXPECT_EQ(has(name) ? get(name) : "-", row.content) << row.log;
        EXPECT_THAT((std::vector{progress, logged()}), testing::ElementsAre(row.progress, row.log));
        if (has(name)) files.DeleteFile(day.gDayFolder + name);
    }
    EXPECT_EQ(status, "before File Not Available File Not Available");
    service.Answers["/clippings/A%23F.PDF"] = HttpPeer::ok("hash");
    EXPECT_TRUE(download("A#F.PDF"));
    EXPECT_EQ(get("A#F.PDF"), "hash");
    files.DeleteFile(day.gDayFolder + "A#F.PDF");
    EXPECT_TRUE(std::filesystem::is_empty(folder.path() / "clips/07032004"));
}

TEST_F(ServiceTest, asksForRoomUntilThereIsMoreThanTheFileNeeds) {
    service.Answers[ServicePeer::pathOf(name)] = HttpPeer::ok(std::string(3000, 'x'));
    std::deque<std::optional<std::uint64_t>> free{3000, 2999, std::nullopt, 3000, 3001};
    files.Free = [&] {
        const auto bytes = free.front();
        free.pop_front();
        return bytes;
    };
    boxes.Answers = {Answer::Retry, Answer::Cancel};
    EXPECT_FALSE(download());
    EXPECT_FALSE(has(name));
    const std::string question = "Not enough free space: Not enough free space available to save " + day.gDayFolder +
                                 name + ". Please free up at least 2 kb from your disk and click Retry|";
    EXPECT_EQ(boxes.shown(), question + question);
    boxes.Answers = {Answer::Retry, Answer::Retry};
    EXPECT_TRUE(download());
    EXPECT_TRUE(free.empty());
    boxes.Shown.clear();
    FaultyFiles faulty;
    const auto part = faulty.OpenPart(day.gDayFolder + ".part");
    files.Free = [] { return 1; };
    const std::string networkPath = "/" + day.gDayFolder + name;  // where nobody asks
    EXPECT_TRUE(http.HttpDownloadFile(name, networkPath, *part, received));
    faulty.failAt(2);  // the writing, after the start
    EXPECT_FALSE(http.HttpDownloadFile(name, networkPath, *part, received));
    EXPECT_TRUE(boxes.Shown.empty());
    files.Free = nullptr;
    faulty.failAt(2);
    boxes.Answers = {Answer::Retry};
    EXPECT_TRUE(http.HttpDownloadFile(name, day.gDayFolder + name, *part, received));
    EXPECT_EQ(boxes.shown(), question);
    EXPECT_EQ(part->Beginning(4000), std::string(3000, 'x'));
}

TEST_F(ServiceTest, asksForTheDayAndStoresWhatTheServiceLists) {
    put("ALLFILES.DIR", "A.PDF||N||T||C||Y||1||d||1||2||3\r\nGONE.PDF||N\r\n\r\n");
    put("GONE.TXT", "x");
    ASSERT_TRUE(getFiles("a.pdf||n||\xDC||c||y||1||-||10||20||30<BR>b.pdf||n||t||c||y||1||-||x||-5||99999999999"));
    EXPECT_EQ(lastForm(),
              "username=ann&password=a&b=\xE1&dd1=07&mm1=03&yyyy1=2004&dd2=07&mm2=03&yyyy2=2004&"
              "vellVersion=2.1.37");
    EXPECT_EQ(get("ALLFILES.DIR"),
              "A.PDF||N||\xC1||C||Y||1||d||10||20||30\r\nB.PDF||N||T||C||Y||1||-||X||-5||99999999999\r\n");
    std::string fetched;
    for (const auto& entry : downloads.gDownloadList)
        fetched += entry.FileName + "=" + std::to_string(entry.Size) + "/" + entry.Change + ";";
    EXPECT_EQ(fetched,
              "ADVERTISMENT.JPG=17855/;A.PDF=10/1;A.TXT=20/1;A.MT=30/1;B.PDF=0/1;B.TXT=0/1;B.MT=2147483647/1;");
    EXPECT_EQ(downloads.gTotalBytes, 2147483707 + 17855);
    EXPECT_FALSE(has("GONE.TXT"));
    EXPECT_THAT((std::vector{status, boxes.shown()}),
                testing::ElementsAre("Getting list of files to download: Done", ""));
}

TEST_F(ServiceTest, changesNothingForAnAnswerThatIsNoList) {
    const std::string old = "A.PDF||N||T||C||Y||1||d\r\n\r\n", record = "A.PDF||N||T||C||Y||1||-||";
    std::string endless = record;
    for (int i = 0; i < 100'000; ++i)
        endless += "<br>" + std::to_string(i) + record;
    put("A.PDF", "x");
    put("ALLFILES.DIR", old);
    for (const std::string& answer :
         {HttpPeer::ok(endless).Bytes, HttpPeer::ok("<html><br>log in</html>").Bytes, HttpPeer::ok("c:x||||||||").Bytes,
          HttpPeer::ok(record + "<br>B.PDF||N||T||C||Y").Bytes, "HTTP/1.0 500 No\r\n\r\n" + record,
          "HTTP/1.0 200 OK\r\nContent-Length: 99\r\n\r\n" + record, std::string()}) {
        service.Answers[ServicePeer::listScript] = {answer};
        EXPECT_FALSE(list.GetDownloadFiles()) << answer;
        EXPECT_EQ(get("ALLFILES.DIR") + get("A.PDF"), old + "x") << answer;
    }
    EXPECT_TRUE(getFiles(""));
    EXPECT_EQ(get("ALLFILES.DIR") + get("A.PDF"), old + "x");
    EXPECT_TRUE(downloads.ServiceWasSilent);
    EXPECT_EQ(downloads.gDownloadList.size(), 1U);
    EXPECT_TRUE(getFiles("error 1002"));
    EXPECT_FALSE(downloads.ServiceWasSilent);
    EXPECT_EQ(get("ALLFILES.DIR"), "");
    EXPECT_FALSE(has("A.PDF"));
}

TEST_F(ServiceTest, readsNoFurtherThanAListCanReach) {
    std::atomic<bool> sentAll = false;
    service.Answers["/x.asp"] = {"HTTP/1.0 200 OK\r\n\r\n" + std::string(64U << 20, '<'), false,
                                 [&] { sentAll = true; }};
    EXPECT_FALSE(post());
    EXPECT_EQ(body, "");
    EXPECT_FALSE(sentAll);
    EXPECT_NE(logged().find("The answer is longer than 16 MB"), std::string::npos);
    EXPECT_EQ(failure, (Failure{Cause::BadAnswer, setup.Host}));
}

TEST_F(ServiceTest, deletesWhatHasGoneOnceTheNewIndexIsStored) {
    put("ALLFILES.DIR", "A.PDF||N||T||C||Y||1||d\r\nGONE.PDF||N\r\n");
    put("GONE.MT", "x");
    files.Trouble = "ALLFILES";
    EXPECT_FALSE(getFiles("a.pdf||n||t||c||y||1||-"));
    EXPECT_TRUE(has("GONE.MT"));
    files.Trouble.clear();
    EXPECT_TRUE(getFiles("a.pdf||n||t||c||y||2||-<br>" + std::string(201, 'b') + ".pdf||n||t||c||y||2||-"));
    EXPECT_FALSE(has("GONE.MT"));
    EXPECT_EQ(get("ALLFILES.DIR"), "A.PDF||N||T||C||Y||1||-\r\n");
    EXPECT_THAT(logged(), testing::HasSubstr("        The service does not list GONE.PDF any more\n        Deleted " +
                                             day.gDayFolder + "GONE.MT\n"));
    EXPECT_EQ(downloads.DroppedRecords, 1);
    EXPECT_EQ(downloads.gDownloadList.at(3).Change, "2");
    EXPECT_TRUE(downloads.gDownloadList.at(3).IsOutdated);
}

TEST_F(ServiceTest, asksForAnotherPasswordForAsLongAsTheUserWishes) {
    setup.Debug = 1;
    boxes.Answers = {Answer::Ok, Answer::Cancel};
    onSetup = [&] { setup.Uid += "2"; };
    EXPECT_FALSE(getFiles("error 1001<br>"));
    EXPECT_FALSE(has("ALLFILES.DIR"));
    EXPECT_TRUE(lastForm().starts_with("username=ann2&"));
    const std::string shown =
        "error 1001<br>|Incorrect username/password combination: Please enter a correct "
        "username/password combination.|";
    EXPECT_EQ(boxes.shown(), shown + shown);
    boxes.Answers = {Answer::Ok};
    onSetup = [&] { service.Answers[ServicePeer::listScript] = HttpPeer::ok("A.PDF||||||||"); };
    EXPECT_TRUE(list.GetDownloadFiles());
}

TEST_F(ServiceTest, storesTheAlertOnlyWhenThereIsOne) {
    const std::tuple<HttpPeer::Answer, bool, std::string> table[] = {
        {HttpPeer::ok("  Strike \xE1\r\ntoday "), true, "Strike \xE1\r\ntoday\r\n"},
        {HttpPeer::ok("   "), false, "old"},
        {HttpPeer::ok("<?xml version='1.0'?>\r\n<html>Log in"), false, "old"},
        {HttpPeer::status("404 Not Found", "", "x"), false, "old"}};
    for (const auto& [answer, result, stored] : table) {
        put("ALERT.MSG", "old");
        service.Answers[ServicePeer::alertScript] = answer;
        EXPECT_EQ(list.GetAlert(), result);
        EXPECT_EQ(get("ALERT.MSG") + lastForm(), stored + "dd=07&mm=03&yyyy=2004");
    }
}

}  // namespace vell::test
