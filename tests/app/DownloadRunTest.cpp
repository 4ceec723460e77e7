// SPDX-License-Identifier: MIT
#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "store/PartName.h"
#include "tests/support/ProgramRig.h"

namespace vell::test {

using testing::HasSubstr;

class DownloadRunTest : public testing::Test, protected ProgramRig {
  protected:
    [[nodiscard]] std::size_t marked() const {
        const std::string index = inDay("ALLFILES.DIR");
        return Split(index, "||d||").size() - 1;
    }
    // Does something, once, when a status with this in it is shown.
    void onStatus(const std::string& part, const std::function<void()>& act) {
        view.OnStatus = [=, this](const std::string& text) {
            if (text.find(part) == std::string::npos) return;
            view.OnStatus = nullptr;
            act();
        };
    }
};

TEST_F(DownloadRunTest, tellsStatusAndLogStepByStepAndLeavesAClippingWithAFailedFileOpen) {
    service.serve(1);
    service.Answers[ServicePeer::pathOf("N120040307.TXT")] = HttpPeer::status("404 Not Found");
    const SteadyTime begun = clock.Steady();
    EXPECT_FALSE(runToday());
    EXPECT_GE(clock.Steady() - begun, std::chrono::seconds{3 * 49});
    const std::string list = "N120040307.pdf||paper||title 1||cat||type||1||-||1500||300||300<br>";
    const std::string expected = R"(==========  Program Started ===============
FORCEd download by user
(flags)
Get/Create dir to put downloaded files.
Download directory is '$FOLDER/clips\07032004\'
Getting files to download...
(list)
(alert)
Number of files to download :4
(1/4)  Downloading ADVERTISMENT.JPG (Starting from 0 bytes)
HTTP-->(0/1) Downloading ADVERTISMENT.JPG (0/17kb), Total kb downloaded: 0/19kb
HTTP-->(0/1) Downloading ADVERTISMENT.JPG (0/17kb), Total kb downloaded: 0/19kb
		Ended with status True
(2/4)  Downloading N120040307.PDF (Starting from 0 bytes)
HTTP-->(0/1) Downloading N120040307.PDF (1/1kb), Total kb downloaded: 1/19kb
HTTP-->(0/1) Downloading N120040307.PDF (1/1kb), Total kb downloaded: 1/19kb
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
HTTP-->(1/1) Downloading N120040307.MT (0/0kb), Total kb downloaded: 1/19kb
HTTP-->Finished: 1 of 1 clippings downloaded.
		Ended with status True
Stopping FTP
FORCEd download ENDED
==========  Program Ended ===============
)";
    std::string told = Replace(logged(), folder.text(), "$FOLDER");
    const std::string end = " OpenUrl Return Status: True\n OpenUrl Return Status: True\n";
    for (const auto& [step, first, last] : std::initializer_list<std::array<std::string, 3>>{
             {"(flags)\n", "StartINET ", "ConnectionName         : \n"},
             {"(list)\n", "Start OpenUrl\n", end},
             {"(alert)\n", "Start OpenUrl\n", end}}) {  // what stands there is another test's matter
        const auto from = told.find(first);
        told.replace(from, told.find(last, from) + last.size() - from, step);
    }
    EXPECT_EQ(told, expected);
    EXPECT_THAT(view.Statuses, testing::StartsWith("Getting list of files to download...\n"
                                                   "Getting list of files to download: Done\n(0/1) Downloading ADV"));
    EXPECT_THAT(view.Statuses, testing::HasSubstr("\n(1/1) Retrying 3/3 N120040307.TXT (0)\n(1/1) Downloading N12"));
    EXPECT_EQ(inDay("ALLFILES.DIR"), "N120040307.PDF||PAPER||TITLE 1||CAT||TYPE||1||-||1500||300||300\r\n\r\n");
    EXPECT_THAT(boxes.Shown, testing::ElementsAre(list));
    EXPECT_EQ(program.downloads().outcome().FilesFailed, 1);
    const DaySummary& day = program.downloads().summary().Days.at(0);
    EXPECT_THAT(day.New, testing::IsEmpty());
    EXPECT_EQ(day.FailedFiles.at(0).Name, "N120040307.TXT");
    EXPECT_EQ(day.FailedFiles.at(0).Why.Why, Cause::NotThere);
}

TEST_F(DownloadRunTest, marksWholeClippingsAndPrintsEachNewPdfOnce) {
    configure("PrintOnDownload=1\r\n", folder.text() + "/clips");
    EXPECT_TRUE(runToday());
    EXPECT_EQ(marked(), 3U);
    EXPECT_EQ(program.downloads().summary().newClippings(), 3U);
    EXPECT_EQ(folder.get("ADVERTISMENT.JPG") + inDay("ALERT.MSG"), "jpegstrike\r\n");
    EXPECT_FALSE(folder.has("clips/07032004/ADVERTISMENT.JPG"));
    EXPECT_EQ(view.Advertisement, folder.text() + "\\ADVERTISMENT.JPG");
    EXPECT_EQ(view.Rows, "N120040307.PDF,TITLE 1,P;N220040307.PDF,TITLE 2,P;N320040307.PDF,TITLE 3,P;");
    EXPECT_THAT((std::vector{view.Status, view.Alert}),
                testing::ElementsAre("Finished: 3 of 3 clippings downloaded.", "strike\r\n"));
    const std::string pdf = folder.text() + "/clips\\07032004\\N120040307.PDF";
    EXPECT_TRUE(shell.Opened.starts_with("Acrord32.exe < /p /h \"" + pdf + "\">\n"));
    EXPECT_TRUE(logHas("\t\tEnded with status True\nPrinting N120040307.PDF\nPRINTING:" + pdf + "\n"));

    std::string& list = service.Answers[ServicePeer::listScript].Bytes;
    list = Replace(list, "title 2||cat||type||1||-||1500", "title 2||cat||type||2||-||11");
    service.Answers[ServicePeer::pathOf("N220040307.PDF")] = HttpPeer::ok("new content");
    shell.Result = 2;
    program.downloads().mnuForceDownload_Click();
    EXPECT_EQ(Split(shell.Opened, "\n").size(), 5U);
    EXPECT_THAT(program.downloads().summary().Days.at(0).New, testing::ElementsAre("N220040307.PDF"));
    EXPECT_NE(view.Statuses.find("\nFAILED Printing N220040307.PDF\n"), std::string::npos);
    files.Trouble = "ALLFILES";  // the list cannot be stored
    program.downloads().mnuForceDownload_Click();
    EXPECT_TRUE(program.downloads().outcome().ListFailed);
    EXPECT_EQ(marked(), 3U);
}

TEST_F(DownloadRunTest, theIndexNamesTheVersionOfAClippingThatIsHere) {
    service.serve(1);
    ASSERT_TRUE(runToday());
    std::string& list = service.Answers[ServicePeer::listScript].Bytes;
    list = Replace(list, "||1||", "||2||") + "c:x||||||||||||||||||<br>";
    const auto text = std::exchange(service.Answers[ServicePeer::pathOf("N120040307.TXT")], {""});
    program.downloads().mnuForceDownload_Click();
    EXPECT_THAT(inDay("ALLFILES.DIR"), testing::HasSubstr("||TYPE||1||-||"));
    service.Answers[ServicePeer::pathOf("N120040307.TXT")] = text;
    program.downloads().mnuForceDownload_Click();
    EXPECT_THAT(inDay("ALLFILES.DIR"), testing::HasSubstr("||TYPE||2||d||"));
    EXPECT_THAT(view.Statuses, testing::HasSubstr("\nClippings left out because their names cannot be stored: 1\n"));
}

TEST_F(DownloadRunTest, waitsForAnotherProgramThatFetchesTheSameFile) {
    std::unique_ptr<PartFile> other;
    SystemFiles others;
    onStatus("N120040307.MT", [&] {
        other = others.OpenPart(folder.text() + "/clips/07032004\\" + partName("N220040307.PDF", "1"));
        other->Write(std::string(1500, 'o'));
    });
    const auto timer = loop.SetTimer(500, [&] {
        if (other) std::exchange(other, nullptr)->MoveTo(folder.text() + "/clips/07032004\\N220040307.PDF");
    });
    EXPECT_TRUE(runToday());
    loop.KillTimer(timer);
    EXPECT_THAT(logged(), HasSubstr("        Another program is fetching this file.\n\t\tEnded with status True"));
    EXPECT_EQ(inDay("N220040307.PDF"), std::string(1500, 'o'));
    EXPECT_EQ(marked(), 3U);
}

TEST_F(DownloadRunTest, anIndexThatCannotBeMarkedAndASecondStartDoNotDisturbTheRun) {
    onStatus("N120040307.MT", [&] {
        files.Trouble = "ALLFILES";
        program.downloads().mnuForceDownload_Click();
    });
    EXPECT_FALSE(runToday());
    EXPECT_EQ(program.downloads().outcome().FilesFailed, 3);
    EXPECT_EQ(service.requests().size(), 2U + 10U);
    EXPECT_TRUE(logHas(" in StartDownload()\n"));
    EXPECT_TRUE(logHas("FORCEd download by user\nStartINET Connection Status Flags: \n"));
    EXPECT_EQ(marked(), 0U);
    files.Trouble = "";
    program.downloads().mnuForceDownload_Click();
    EXPECT_EQ(marked(), 3U);
}

TEST_F(DownloadRunTest, stopLetsTheFileUnderWayEndAndStartsNoOther) {
    onStatus("N220040307.PDF", [&] { program.downloads().cmdStopDownload_Click(); });
    EXPECT_TRUE(runToday());
    EXPECT_TRUE(program.downloads().outcome().Stopped);
    EXPECT_TRUE(service.wasAskedLastFor("N220040307.PDF"));
    EXPECT_EQ(inDay("N220040307.PDF").size(), 1500U);
    EXPECT_EQ(view.Status, "Download STOPED by user.");
    EXPECT_TRUE(logHas("\t\tEnded with status True\nDownload STOPED by user.\nFORCEd download ENDED\n"));
    program.downloads().mnuForceDownload_Click();  // the stop does not outlive its run
    EXPECT_EQ(view.Status, "Finished: 3 of 3 clippings downloaded.");
}

TEST_F(DownloadRunTest, stopEndsTheRequestsForListAndAlertAtOnce) {
    ASSERT_TRUE(program.Form_Load(frmMain::Start::Alone));
    for (const char* script : {ServicePeer::listScript, ServicePeer::alertScript}) {
        service.Answers[script] = {"HTTP/1.0 200 OK\r\n\r\nbegin", true};
        const auto timer = loop.SetTimer(1000, [&] { program.downloads().cmdStopDownload_Click(); });
        const SteadyTime begun = clock.Steady();
        program.downloads().mnuForceDownload_Click();
        EXPECT_TRUE(program.downloads().outcome().Stopped) << script;
        EXPECT_LT(clock.Steady() - begun, std::chrono::seconds{2}) << script;
        EXPECT_EQ(view.Status, "Download STOPED by user.");
        loop.KillTimer(timer);
        service.Answers[script].Stalls = false;
        service.serve(3);
    }
    EXPECT_EQ(service.requests().size(), 3U);
}

TEST_F(DownloadRunTest, stopEndsThePauseBeforeARetry) {
    service.Answers[ServicePeer::pathOf("N120040307.PDF")] = {""};
    const SteadyTime begun = clock.Steady();
    EventLoop::TimerId timer = 0;
    onStatus("Retrying", [&] { timer = loop.SetTimer(1000, [&] { program.downloads().cmdStopDownload_Click(); }); });
    EXPECT_TRUE(runToday());
    loop.KillTimer(timer);
    EXPECT_EQ(service.requests().size(), 4U);
    EXPECT_LT(clock.Steady() - begun, std::chrono::seconds{40});
    EXPECT_TRUE(
        logHas("(2/10)  Retrying 1/3 N120040307.PDF (Starting from 0 bytes)\n"
               "\t\tEnded with status False\n\t\tEnded with status False\nDownload STOPED by user.\n"));
}

TEST_F(DownloadRunTest, withoutRetriesInTheSettingsThereIsOneAndTheStatusSaysSo) {
    folder.put("vell.ini", Replace(folder.get("vell.ini"), "RetryOnFailure=3", "RetryOnFailure=0"));
    service.Answers[ServicePeer::pathOf("N120040307.PDF")] = {""};
    EXPECT_FALSE(runToday());
    EXPECT_THAT(view.Statuses, HasSubstr(") Retrying 1/1 N120040307.PDF (0)\n"));
    EXPECT_EQ(service.requests().size(), 2U + 1 + 10);
}

TEST_F(DownloadRunTest, saysWhyItFetchesNothing) {
    const std::string noFolder = "Error! Download folder not created. Check 'Download Path' in Setup.",
                      noFolderLog = "ERROR Get/Create download dir to put downloaded files.",
                      noList = "Error while getting list of files to download", nothing = "No files to download found.";
    const std::string clips = folder.text() + "/clips",
                      emptied = nothing + "\n        Deleted " + clips + "\\07032004\\ALLFILES.DIR";
    const std::tuple<std::string, HttpPeer::Answer, std::string, std::string, std::size_t, std::optional<Failure>>
        table[] = {{"", {}, noFolder, noFolderLog, 0, {{Cause::NoFolder}}},
                   {"/dev/null/x", {}, noFolder, noFolderLog, 0, {{Cause::FolderMissing, "/dev/null/x"}}},
                   {"/dev/null", {}, noFolder, noFolderLog, 0, {{Cause::FolderUnwritable, "/dev/null"}}},
                   {clips, {""}, noList, noList, 1, {{Cause::ConnectionLost, "service.example"}}},
                   {clips, HttpPeer::status("500 No"), noList, noList, 1, {{Cause::ServiceStatus, "500 No"}}},
                   {clips, HttpPeer::ok("ERROR 1001"), noList, noList, 1, {{Cause::LoginRefused}}},
                   {clips, HttpPeer::ok("error 1002"), nothing, emptied, 2, {}},
                   {clips, HttpPeer::ok(""), nothing, nothing, 2, {}}};
    for (const auto& [localDir, answer, status, line, requests, why] : table) {
        configure("", localDir);
        service.Answers[ServicePeer::listScript] = answer;
        folder.put("clips/07032004/ALLFILES.DIR", "old");
        const std::size_t before = service.requests().size();
        EXPECT_EQ(runToday(), status == nothing);
        EXPECT_EQ(view.Status, status);
        EXPECT_EQ(program.downloads().summary().Days.at(0).BrokenOff, why);
        EXPECT_EQ(view.State, why ? MainView::ForcedRun::Failed : MainView::ForcedRun::EndedWell);
        EXPECT_TRUE(logHas("\n" + line + "\nFORCEd download ENDED\n")) << logged();
        std::filesystem::remove(folder.path() / "vell.log");
        EXPECT_EQ(service.requests().size() - before, requests) << status;
        EXPECT_EQ(folder.has("clips/07032004/ALLFILES.DIR"), line != emptied);
    }
    EXPECT_FALSE(folder.has("ADVERTISMENT.JPG"));
}

TEST_F(DownloadRunTest, whatAPersonLooksAtIsNoBusinessOfTheRun) {
    service.Answers[ServicePeer::listScript] = HttpPeer::ok("error 1002");
    folder.put("clips/07032004/ALLFILES.DIR", "N120040307.PDF||\r\n\r\n");
    folder.put("clips/07032004/N120040307.PDF", "gone from the list");
    for (const char* file : {"ALLFILES.DIR", "N120040307.PDF"})
        folder.put(std::string("clips/01032004/") + file, "x");
    view.Follows = false;
    ASSERT_TRUE(program.Form_Load(frmMain::Start::Alone));
    ASSERT_TRUE(program.reading().Browser.chooseDay({2004, 3, 1}));
    program.downloads().mnuForceDownload_Click();
    for (const char* file : {"ALLFILES.DIR", "N120040307.PDF"}) {
        EXPECT_FALSE(folder.has(std::string("clips/07032004/") + file)) << file;
        EXPECT_EQ(folder.get(std::string("clips/01032004/") + file), "x") << file;
    }
    EXPECT_EQ(view.Days, "07/03/2004 *01/03/2004 ");
    ASSERT_TRUE(program.reading().Browser.chooseDay({2004, 3, 7}));
    EXPECT_EQ(view.Alert, "strike\r\n");
}

TEST_F(DownloadRunTest, walksThroughARangeOfDays) {
    service.Answers[ServicePeer::listScript] = HttpPeer::ok("error 1002");
    ASSERT_TRUE(program.Form_Load(frmMain::Start::Alone));
    program.downloads().chooseRange({2004, 2, 28}, {2004, 3, 1});
    program.downloads().mnuForceDownload_Click();
    EXPECT_THAT((std::vector{view.Days, view.Range}),
                testing::ElementsAre("*01/03/2004 29/02/2004 28/02/2004 ", "01/03/2004-01/03/2004"));
    EXPECT_EQ(view.Status, "0 clippings in 0 days; none on 28/02/2004, 29/02/2004, 01/03/2004");
    program.downloads().chooseRange({2004, 3, 2}, {2004, 3, 5});
    onStatus("No files to download found.", [&] { program.downloads().cmdStopDownload_Click(); });
    program.downloads().mnuForceDownload_Click();
    EXPECT_EQ(view.Range, "03/03/2004-05/03/2004");
    program.downloads().chooseRange({2004, 3, 5}, {2004, 3, 4});
    program.downloads().mnuForceDownload_Click();
    EXPECT_EQ(view.Message, "To date can not be less that From date. Please correct it.");
    EXPECT_EQ(view.State, MainView::ForcedRun::Running);
    EXPECT_EQ(service.requests().size(), 2U * 4U);
}

}  // namespace vell::test
