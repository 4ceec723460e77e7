// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "app/DownloadRun.h"
#include "tests/support/ProgramRig.h"

namespace vell::test {
namespace {

using Texts = std::vector<std::string>;

class DownloadRunTest : public testing::Test, protected ProgramRig {
  protected:
    void run() {
        ASSERT_TRUE(program.Form_Load(frmMain::Start::Alone));
        program.mnuForceDownload_Click();
        program.Form_Unload();
    }
    static std::string exchange(const std::string& script, const std::string& form, const std::string& body) {
        return "Start OpenUrl\n      Method:POST, Host:service.example, Scipt:" + script + ", PostData:" + form +
               "\nInternetOpen function\n       SUCCESS\nInternetConnect function\n       SUCCESS\nHttpOpenRequest\n"
               "       SUCCESS\nHttpAddRequestHeaders function\n        Headers:Content-Type: "
               "application/x-www-form-urlencoded\n\nHttpSendRequest function\n        PostData:" +
               form + "\nInternetReadFile function loop\n        Body:" + body +
               "\n        Headers:HTTP/1.0 200 OK\nContent-Length: " + std::to_string(body.size()) +
               "\n\n OpenUrl Return Status: True\n OpenUrl Return Status: True\n";
    }
    [[nodiscard]] bool logHas(const std::string& lines) const { return logged().find(lines) != std::string::npos; }
};

TEST_F(DownloadRunTest, tellsStatusAndLogStepByStepAndLeavesAClippingWithAFailedFileOpen) {
    serve(1);
    service.Answers[pathOf("N120040307.TXT")] = HttpPeer::status("404 Not Found");
    service.Answers["/archive/RTIS/ME/NT/ADVERTISMENT.JPG"] = HttpPeer::ok("jpeg");
    const SteadyTime begun = clock.Steady();
    run();
    EXPECT_GE(clock.Steady() - begun, std::chrono::seconds{15});
    const std::string form =
        "username=ann&password=&dd1=07&mm1=03&yyyy1=2004&dd2=07&mm2=03&yyyy2=2004&"
        "vellVersion=2.1.37";
    const std::string list = "N120040307.pdf||paper||title 1||cat||type||1||-||1500||300||20<br>";
    EXPECT_EQ(logged(),
              "==========  Program Started ===============\n"
              "FORCEd download by user\n"
              "Get/Create dir to put downloaded files.\n"
              "Download directory is '" +
                  folder.text() +
                  "/clips\\07032004\\'\n"
                  "Getting files to download...\n" +
                  exchange("/vell/vellClipsToDownload.asp", form, list) +
                  exchange("/sources.asp", "dd=07&mm=03&yyyy=2004", "strike") +
                  R"(Number of files to download :4
(1/4)  Downloading ADVERTISMENT.JPG (Starting from 0 bytes)
HTTP-->(0/1) Downloading ADVERTISMENT.JPG (0/17kb), Total kb downloaded: 0/1kb
HTTP-->(0/1) Downloading ADVERTISMENT.JPG (0/17kb), Total kb downloaded: 0/1kb
		Ended with status True
(2/4)  Downloading N120040307.PDF (Starting from 0 bytes)
HTTP-->(0/1) Downloading N120040307.PDF (1/1kb), Total kb downloaded: 1/1kb
HTTP-->(0/1) Downloading N120040307.PDF (1/1kb), Total kb downloaded: 1/1kb
		Ended with status True
(3/4)  Downloading N120040307.TXT (Starting from 0 bytes)
        The service answered with status 404
(3/4)  Retrying 1/3 N120040307.TXT (Starting from 0 bytes)
        The service answered with status 404
		Ended with status False
(3/4)  Retrying 2/3 N120040307.TXT (Starting from 0 bytes)
        The service answered with status 404
		Ended with status False
(3/4)  Retrying 3/3 N120040307.TXT (Starting from 0 bytes)
        The service answered with status 404
		Ended with status False
		Ended with status False
(4/4)  Downloading N120040307.MT (Starting from 0 bytes)
HTTP-->(1/1) Downloading N120040307.MT (0/0kb), Total kb downloaded: 1/1kb
HTTP-->Finished: 1 of 1 clippings downloaded.
		Ended with status True
Stopping FTP
FORCEd download ENDED
==========  Program Ended ===============
)");
    EXPECT_EQ(view.Statuses, (Texts{"Getting list of files to download...", "Getting list of files to download: Done",
                                    "(0/1) Downloading ADVERTISMENT.JPG (0/17kb), Total kb downloaded: 0/1kb",
                                    "(0/1) Downloading ADVERTISMENT.JPG (0/17kb), Total kb downloaded: 0/1kb",
                                    "(0/1) Downloading N120040307.PDF (1/1kb), Total kb downloaded: 1/1kb",
                                    "(0/1) Downloading N120040307.PDF (1/1kb), Total kb downloaded: 1/1kb",
                                    "(1/1) Retrying 1/3 N120040307.TXT (0)", "(1/1) Retrying 2/3 N120040307.TXT (0)",
                                    "(1/1) Retrying 3/3 N120040307.TXT (0)",
                                    "(1/1) Downloading N120040307.MT (0/0kb), Total kb downloaded: 1/1kb",
                                    "Finished: 1 of 1 clippings downloaded."}));
    EXPECT_EQ(inDay("ALLFILES.DIR"), "N120040307.PDF||PAPER||TITLE 1||CAT||TYPE||1||-||1500||300||20\r\n\r\n");
    EXPECT_EQ(boxes.Shown, Texts{list});
    EXPECT_EQ(program.outcome().FilesFailed, 1);
}

TEST_F(DownloadRunTest, marksWholeClippingsAndPrintsEachNewPdfOnce) {
    folder.put("vell.ini", folder.get("vell.ini") + "PrintOnDownload=1\r\n");
    run();
    const std::string index = inDay("ALLFILES.DIR");
    EXPECT_EQ(Split(index, "||d||").size(), 4U) << index;
    EXPECT_EQ(inDay("N220040307.TXT"), std::string(300, 'c'));
    EXPECT_EQ(inDay("ALERT.MSG"), "strike\r\n");
    EXPECT_EQ(folder.get("ADVERTISMENT.JPG").size(), 17855U);
    EXPECT_FALSE(folder.has("clips/07032004/ADVERTISMENT.JPG"));
    EXPECT_EQ(view.Advertisement, folder.text() + "\\ADVERTISMENT.JPG");
    EXPECT_EQ(view.Rows, "N120040307.PDF,TITLE 1,P;N220040307.PDF,TITLE 2,P;N320040307.PDF,TITLE 3,P;");
    EXPECT_EQ(view.Statuses.back(), "Finished: 3 of 3 clippings downloaded.");
    EXPECT_EQ(view.Alert, "strike\r\n");
    const std::string pdf = folder.text() + "/clips\\07032004\\N120040307.PDF";
    ASSERT_EQ(shell.Opened.size(), 3U);
    EXPECT_EQ(shell.Opened[0], "Acrord32.exe| /p /h \"" + pdf + "\"");
    EXPECT_TRUE(logHas("\t\tEnded with status True\nPrinting N120040307.PDF\nPRINTING:" + pdf + "\n"));
    EXPECT_TRUE(program.outcome().isGood());

    service.Answers[pathOf("N220040307.PDF")] = HttpPeer::ok("new content");
    shell.Result = 2;
    program.mnuForceDownload_Click();
    EXPECT_EQ(shell.Opened.size(), 4U);
    EXPECT_EQ(inDay("ALLFILES.DIR"), index);
    EXPECT_TRUE(std::ranges::count(view.Statuses, "FAILED Printing N220040307.PDF"));
    files.Trouble = "ALLFILES";  // neither list nor marks can be stored
    program.mnuForceDownload_Click();
    EXPECT_TRUE(program.outcome().ListFailed);
    EXPECT_EQ(inDay("ALLFILES.DIR"), index);
}

TEST_F(DownloadRunTest, oneIndexThatCannotBeMarkedDoesNotKeepTheOthersAway) {
    view.OnStatus = [&](const std::string& text) {
        files.Trouble = text.find("N1") != std::string::npos ? "ALLFILES" : "";
    };
    run();
    EXPECT_EQ(program.outcome().FilesFailed, 1);
    EXPECT_TRUE(logHas(" in StartDownload()\n"));
    const std::string index = inDay("ALLFILES.DIR");
    EXPECT_EQ(Split(index, "||d||").size(), 3U) << index;
}

TEST_F(DownloadRunTest, aSecondStartWhileARunIsUnderWayChangesNothing) {
    int nested = 0;
    view.OnStatus = [&](const std::string& text) {
        if (text.find("N220040307.TXT") != std::string::npos && nested++ == 0) program.mnuForceDownload_Click();
    };
    run();
    EXPECT_EQ(service.requests().size(), 2U + 10U);
    EXPECT_EQ(nested, 2);
    EXPECT_TRUE(logHas("FORCEd download by user\nFORCEd download ENDED\n"));
    EXPECT_EQ(view.Statuses.back(), "Finished: 3 of 3 clippings downloaded.");
}

TEST_F(DownloadRunTest, stopLetsTheFileUnderWayEndAndStartsNoOther) {
    view.OnStatus = [&](const std::string& text) {
        if (text.find("N220040307.PDF") == std::string::npos) return;
        view.OnStatus = nullptr;
        program.cmdStopDownload_Click();
    };
    run();
    EXPECT_EQ(service.paths().back(), pathOf("N220040307.PDF"));
    EXPECT_EQ(inDay("N220040307.PDF").size(), 1500U);
    EXPECT_EQ(view.Statuses.back(), "Download STOPED by user.");
    EXPECT_TRUE(logHas("\t\tEnded with status True\nDownload STOPED by user.\nFORCEd download ENDED\n"));
    EXPECT_TRUE(program.outcome().Stopped && program.outcome().isGood());
    EXPECT_FALSE(view.Running);
    program.mnuForceDownload_Click();  // the stop does not outlive its run
    EXPECT_EQ(view.Statuses.back(), "Finished: 3 of 3 clippings downloaded.");
}

TEST_F(DownloadRunTest, stopEndsThePauseBeforeARetry) {
    service.Answers[pathOf("N120040307.PDF")] = {""};
    folder.put("vell.ini", Replace(folder.get("vell.ini"), "RetryDelay=5", "RetryDelay=49"));
    const SteadyTime begun = clock.Steady();
    EventLoop::TimerId timer = 0;
    view.OnStatus = [&](const std::string& text) {
        if (text.find("Retrying") == std::string::npos) return;
        timer = loop.SetTimer(1000, [&] {
            program.cmdStopDownload_Click();
            loop.KillTimer(timer);
        });
    };
    run();
    EXPECT_EQ(service.paths().back(), pathOf("N120040307.PDF"));
    EXPECT_EQ(std::ranges::count(service.paths(), pathOf("N120040307.PDF")), 1);
    EXPECT_LT(clock.Steady() - begun, std::chrono::seconds{40});
    EXPECT_TRUE(
        logHas("        The file is not available. Error 12030\n"
               "(2/10)  Retrying 1/3 N120040307.PDF (Starting from 0 bytes)\n"
               "\t\tEnded with status False\n\t\tEnded with status False\nDownload STOPED by user.\n"));
}

TEST_F(DownloadRunTest, saysWhyItFetchesNothing) {
    const std::string list = ServicePeer::listScript;
    const struct {
        std::string setting;
        HttpPeer::Answer answer;
        std::string status, log;
        std::size_t requests;
        std::string outcome;
    } table[] = {
        {"[Download]\r\nLocalDir=\r\n",
         {},
         "Error! Download folder not created. Check 'Download Path' in Setup.",
         " in CreateDownloadDirPath()\nERROR Get/Create download dir to put downloaded files.\nFORCEd",
         0,
         "folder"},
        {"[Download]\r\nLocalDir=/dev/null/x\r\n",
         {},
         "Error! Download folder not created. Check 'Download Path' in Setup.",
         " in CreateDownloadDirPath()\nERROR Get/Create download dir to put downloaded files.\nFORCEd",
         0,
         "folder"},
        {"", HttpPeer::status("500 No"), "Error while getting list of files to download",
         " OpenUrl Return Status: False\nError while getting list of files to download\nFORCEd", 1, "list"},
        {"", HttpPeer::ok("ERROR 1001"), "Error while getting list of files to download", "True\nError while getting",
         1, "list"},
        {"", HttpPeer::ok("error 1002"), "No files to download found.", "True\nNo files to download found.\nFORCEd", 2,
         ""},
        {"", HttpPeer::ok(""), "No files to download found.", "True\nNo files to download found.\nFORCEd", 2, ""},
    };
    for (const auto& row : table) {
        ProgramRig rig;
        if (!row.setting.empty()) rig.folder.put("vell.ini", "[General]\r\nDebug=1\r\n" + row.setting);
        if (!row.answer.Bytes.empty()) rig.service.Answers[list] = row.answer;
        rig.folder.put("clips/07032004/ALLFILES.DIR", "old");
        ASSERT_TRUE(rig.program.Form_Load(frmMain::Start::Alone));
        rig.program.mnuForceDownload_Click();
        EXPECT_EQ(rig.view.Statuses.back(), row.status);
        EXPECT_NE(rig.logged().find(row.log), std::string::npos) << rig.logged();
        EXPECT_EQ(rig.service.requests().size(), row.requests) << row.status;
        const RunOutcome& out = rig.program.outcome();
        EXPECT_EQ(out.FolderFailed, row.outcome == "folder");
        EXPECT_EQ(out.ListFailed, row.outcome == "list");
        EXPECT_EQ(rig.folder.has("clips/07032004/ALLFILES.DIR"), row.status != "No files to download found.");
        EXPECT_FALSE(rig.folder.has("ADVERTISMENT.JPG"));
        EXPECT_FALSE(rig.view.Running);
    }
}

TEST_F(DownloadRunTest, anEmptyListDeletesTheIndexOfTheDayThatIsChosen) {
    service.Answers[ServicePeer::listScript] = HttpPeer::ok("error 1002");
    folder.put("clips/01032004/ALLFILES.DIR", "x");
    folder.put("clips/07032004/ALLFILES.DIR", "x");
    view.Follows = false;
    ASSERT_TRUE(program.Form_Load(frmMain::Start::Alone));
    ASSERT_TRUE(program.browser().chooseDay("01/03/2004"));
    program.mnuForceDownload_Click();
    EXPECT_FALSE(folder.has("clips/01032004/ALLFILES.DIR"));
    EXPECT_TRUE(folder.has("clips/07032004/ALLFILES.DIR"));
    EXPECT_EQ(view.Chosen, "01/03/2004");
}

TEST_F(DownloadRunTest, walksThroughARangeOfDays) {
    service.Answers[ServicePeer::listScript] = HttpPeer::ok("error 1002");
    ASSERT_TRUE(program.Form_Load(frmMain::Start::Alone));
    program.chooseRange({2004, 2, 28}, {2004, 3, 1});
    program.mnuForceDownload_Click();
    for (const char* day : {"28022004", "29022004", "01032004"})
        EXPECT_TRUE(folder.has(std::string("clips/") + day)) << day;
    EXPECT_EQ(service.requests().size(), 6U);
    EXPECT_EQ(view.Range, "01/03/2004-01/03/2004");
    EXPECT_EQ(view.Chosen, "01/03/2004");
    EXPECT_FALSE(view.Running);

    program.chooseRange({2004, 3, 2}, {2004, 3, 5});
    view.OnStatus = [&](const std::string& text) {
        if (text == "No files to download found.") program.cmdStopDownload_Click();
    };
    program.mnuForceDownload_Click();
    EXPECT_EQ(view.Range, "03/03/2004-05/03/2004");
    EXPECT_FALSE(folder.has("clips/03032004"));

    program.chooseRange({2004, 3, 5}, {2004, 3, 4});
    program.mnuForceDownload_Click();
    EXPECT_EQ(view.Messages, Texts{"To date can not be less that From date. Please correct it."});
    EXPECT_TRUE(view.Running);
    EXPECT_EQ(service.requests().size(), 8U);
}

TEST_F(DownloadRunTest, aSecondInstanceAndAMissingSettingsFileAreTold) {
    anotherRuns = true;
    std::filesystem::remove(folder.path() / "vell.ini");
    EXPECT_FALSE(program.Form_Load(frmMain::Start::Alone));
    program.Form_Unload();
    EXPECT_TRUE(program.Form_Load(frmMain::Start::Beside));
    EXPECT_EQ(boxes.Shown, (Texts{"Program is already running",
                                  "Warning. INI file 'vell.ini' not found.\r\nSETUP and SCHEDULE parameters must be "
                                  "set again."}));
    EXPECT_FALSE(folder.has("vell.log"));
}

}  // namespace
}  // namespace vell::test
