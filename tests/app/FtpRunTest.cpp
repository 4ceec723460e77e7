// SPDX-License-Identifier: MIT
#include <optional>

#include <gmock/gmock.h>

#include "tests/ftp/FtpServerProcess.h"
#include "tests/support/ProgramRig.h"

namespace vell::test {

using testing::AllOf, testing::HasSubstr, testing::Not;

// Whole runs over FTP, from servers that we did not write.
class FtpRunTest : public testing::TestWithParam<const char*>, protected ProgramRig {
  protected:
    void SetUp() override {
        // The first is more than what two ends of a connection hold, so that it breaks off when its server dies.
        put("N120040307", 20'000'000);
        put("N220040307", 30'000);
        root_.put("torvoarchive/ADVERTISMENT.JPG", "jpeg");
        service.Answers[ServicePeer::listScript] = HttpPeer::ok(list_);
        server_.emplace(GetParam(), root_);
        if (server_->port() == 0) GTEST_SKIP() << GetParam() << " is not installed";
        folder.put("vell.ini", "[Host]\r\nProtocol=FTP\r\nHost=127.0.0.1\r\nPort=" + std::to_string(server_->port()) +
                                   "\r\nTimeOut=20\r\nRetryOnFailure=3\r\nRetryDelay=1\r\n[General]\r\nDebug=1\r\n" +
                                   "[Download]\r\nAutoUpdateCheck=0\r\nLocalDir=" + folder.text() + "/clips\r\n");
    }

    void put(const std::string& name, std::size_t size) {
        std::string content(size, 'x');
        for (std::size_t i = 0; i + 8 <= size; i += 4096)
            content.replace(i, 8, std::to_string(10'000'000 + i));
        root_.put("torvoarchive/" + name + ".PDF", content);
        root_.put("torvoarchive/" + name + ".TXT", std::string(300, 't'));
        root_.put("torvoarchive/" + name + ".MT", "");
        list_ += name + ".PDF||paper||title||cat||type||1||-||" + std::to_string(size) + "||300||0<br>";
    }

    void expectTheDayOnDisk() const {
        for (const char* name : {"N120040307.PDF", "N220040307.PDF", "N220040307.TXT", "N120040307.MT"})
            EXPECT_TRUE(inDay(name) == root_.get(std::string("torvoarchive/") + name)) << name;
        EXPECT_EQ(folder.get("ADVERTISMENT.JPG"), "jpeg");
        const std::string index = inDay("ALLFILES.DIR");
        EXPECT_EQ(Split(index, "||d||").size(), 3U) << index;
    }

    TempFolder root_;
    std::string list_;
    std::optional<FtpServerProcess> server_;
};

TEST_P(FtpRunTest, fetchesADayAndResumesWhatAnEarlierRunHasLeft) {
    std::filesystem::create_directory(folder.path() / "clips/07032004");
    const auto place = folder.path() / "clips/07032004/";
    folder.put("clips/07032004/N120040307.PDF", "of an unknown version, since it is older than the index");
    folder.put("clips/07032004/ALLFILES.DIR", "N120040307.PDF||||||||||1||-\r\nN220040307.PDF||||||||||1||-\r\n\r\n");
    folder.put("clips/07032004/N220040307.PDF", root_.get("torvoarchive/N220040307.PDF").substr(0, 1000));
    const auto listed = std::filesystem::last_write_time(place / "ALLFILES.DIR");
    std::filesystem::last_write_time(place / "N120040307.PDF", listed - std::chrono::seconds{1});
    std::filesystem::last_write_time(place / "N220040307.PDF", listed + std::chrono::seconds{1});
    EXPECT_TRUE(runToday());
    expectTheDayOnDisk();
    EXPECT_TRUE(logHas("Starting FTP connection.\nFTP-->Resolving host...\nFTP-->Host resolved\nFTP-->Connected\n"));
    EXPECT_TRUE(logHas("FTP-->Authentication...\nFTP-->USER vell\nFTP-->331 "));
    for (const char* lines : {"FTP-->PASS **********\nFTP-->230 ", "FTP-->CWD torvoarchive\nFTP-->250 ",
                              "(Starting from 1000 bytes)", "FTP-->REST 1000\nFTP-->350 ", "FTP-->QUIT\nFTP-->221"})
        EXPECT_THAT(logged(), HasSubstr(lines));
    EXPECT_TRUE(logHas("FTP-->Transfer of (7/7) N220040307.MT completed.\n\t\tEnded with status True\nStopping FTP\n"));
    EXPECT_THAT(logged(), Not(HasSubstr("ruxo")));
}

TEST_P(FtpRunTest, goesOnWhereAServerThatDiedHadCome) {
    bool died = false;
    view.OnStatus = [&](const std::string& status) {
        if (died || status.find("  Downloading N120040307.PDF (") == std::string::npos) return;
        died = true;
        const std::uint16_t port = server_->port();
        server_.reset();
        server_.emplace(GetParam(), root_, port);
    };
    EXPECT_TRUE(runToday());
    EXPECT_TRUE(died);
    EXPECT_THAT(logged(),
                AllOf(HasSubstr("  Retrying 1/3 N120040307.PDF (Starting from 0 bytes)"), HasSubstr("FTP-->REST ")));
    expectTheDayOnDisk();
}

TEST_P(FtpRunTest, stopEndsTheTransferWhenTheUserAgrees) {
    boxes.Answers = {Answer::Yes};
    view.OnStatus = [&](const std::string& status) {
        if (status.find("  Downloading N120040307.PDF (") == std::string::npos) return;
        view.OnStatus = nullptr;
        program.downloads().cmdStopDownload_Click();
    };
    (void)runToday();
    EXPECT_TRUE(program.downloads().outcome().Stopped);
    EXPECT_THAT(logged(), AllOf(HasSubstr("Download STOPED by user."), Not(HasSubstr("N220040307.PDF ("))));
    EXPECT_EQ(boxes.Shown.back(), "Data transfer in progress. Do you want to cancel the data transfer?");
}

TEST_P(FtpRunTest, saysSoWhenNobodyAnswers) {
    server_.reset();
    EXPECT_FALSE(runToday());
    EXPECT_TRUE(program.downloads().outcome().FtpFailed);
    EXPECT_THAT(logged(), Not(HasSubstr("Stopping FTP")));
    EXPECT_TRUE(logHas("Error starting FTP connection. Please check Host name\nFORCEd download ENDED"));
}

INSTANTIATE_TEST_SUITE_P(RealServers, FtpRunTest, testing::Values("pyftpdlib", "proftpd"),
                         [](const auto& server) { return std::string(server.param); });

}  // namespace vell::test
