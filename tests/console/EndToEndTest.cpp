// SPDX-License-Identifier: MIT
#include <atomic>
#include <map>
#include <thread>

#include <gtest/gtest.h>

#include "tests/support/ConsoleProgram.h"
#include "tests/support/ServicePeer.h"

namespace vell::test {
namespace {

namespace fs = std::filesystem;

// The program as its user starts it, on a day of three clippings.
class EndToEndTest : public testing::Test {
  protected:
    EndToEndTest() {
        fs::create_directory(folder_.path() / "clips");
        folder_.put("vell.ini",
                    "[Host]\r\nHost=service.example\r\nUid=ann\r\nRetryOnFailure=1\r\n[Download]\r\nLocalDir=" +
                        folder_.text() + "/clips\r\n");
        std::string list;
        for (const std::string base : {"A20040307", "B20040307", "C20040307"}) {
            list += base + ".PDF||paper||title " + base[0] + "||cat||type||1||-||300000||300||20<br>";
            for (const char* ending : {".PDF", ".TXT", ".MT"})
                service_.Answers["/archive/2004/03/07/" + base + ending] =
                    HttpPeer::ok(std::string(ending[1] == 'P' ? 300'000 : 300, base[0]));
        }
        service_.Answers[ServicePeer::listScript] = HttpPeer::ok(list);
        service_.Answers[ServicePeer::alertScript] = HttpPeer::ok("strike");
        service_.Answers["/archive/RTIS/ME/NT/ADVERTISMENT.JPG"] = HttpPeer::ok("jpeg");
    }
    // The exit code of the command, its output, and after "!" its error output.
    std::string run(std::vector<std::string> arguments, const std::string& input = "") {
        ConsoleProgram program(folder_, std::move(arguments), input);
        const int code = program.wait();
        const std::string err = program.err();
        return std::to_string(code) + " " + program.out() + (err.empty() ? "" : "!" + err);
    }
    const std::vector<std::string> download{"download", "--date", "07/03/2004"};

    TempFolder folder_;
    ServicePeer service_;
};

TEST_F(EndToEndTest, fetchesADayListsItAndFetchesItAgain) {
    EXPECT_EQ(run({"days"}), "0 ");
    EXPECT_EQ(run({"list"}), "0 !No day has been fetched yet. 'vell-console download' fetches today's clippings.\n");
    const std::string first = run(download);
    EXPECT_TRUE(first.starts_with("0 Getting list of files to download...\nGetting list of files to download: Done\n"));
    EXPECT_TRUE(first.ends_with("\nFinished: 3 of 3 clippings downloaded.\n"));
    EXPECT_TRUE(run(download).starts_with("0 "));
    EXPECT_EQ(run({"days"}), "0 07/03/2004\n");
    const std::string path = folder_.text() + "/clips\\07032004\\";
    std::string rows = "0 ";
    for (const char clipping : {'A', 'B', 'C'}) {
        const std::string name = clipping + std::string("20040307.PDF");
        rows += std::string("-\tPAPER\tTITLE ") + clipping + "\tTYPE\tCAT\t" + name + "\t" + path + name + "\n";
    }
    EXPECT_EQ(run({"list", "--tsv"}), rows);
    EXPECT_TRUE(run({"list", "--date", "07/03/2004"}).starts_with("0 07/03/2004   3 Clippings\nstrike\n   Newspaper"));
    EXPECT_EQ(run({"list", "--date", "08/03/2004"}).substr(0, 43), "1 !The day 08/03/2004 has not been fetched.");
    EXPECT_FALSE(folder_.has("vell.log"));
}

TEST_F(EndToEndTest, endsWithACodeThatTellsHowItWent) {
    EXPECT_EQ(run({"download", "--date", "31/11/2004"})[0], '2');
    EXPECT_EQ(run({"download", "--from", "06/03/2004", "--to", "07/03/2004"})[0], '0');
    service_.Answers["/archive/2004/03/07/B20040307.TXT"] = HttpPeer::status("404 Not Found");
    EXPECT_EQ(run(download)[0], '1');
    EXPECT_NE(folder_.get("clips/07032004/ALLFILES.DIR").find("B||CAT||TYPE||1||d||"), std::string::npos);
    service_.Answers[ServicePeer::listScript] = HttpPeer::ok("error 1002");
    EXPECT_EQ(run(download),
              "0 Getting list of files to download...\nGetting list of files to download: Done\n"
              "No files to download found.\n");
    service_.Answers[ServicePeer::listScript] = HttpPeer::status("500 No");
    EXPECT_EQ(run(download),
              "1 Getting list of files to download...\nError while getting list of files to download\n"
              "!Quillon Service not available. Please try again later.\n");
    service_.Answers[ServicePeer::listScript] = HttpPeer::ok("error 1001");
    const auto asked = service_.requests().size();
    EXPECT_EQ(run({"download", "--yes"})[0], '1');
    EXPECT_EQ(service_.requests().size() - asked, 4U);  // affirmed three times
    EXPECT_EQ(run(download)[0], '1');
    EXPECT_EQ(service_.requests().size() - asked, 5U);
    EXPECT_EQ(run({"setup", "Pwd", "-"}, "secret\n") + run({"setup"}).substr(0, 16), "0 Pwd = (set)\n0 Protocol = HTT");
}

TEST_F(EndToEndTest, stopsAtSigintAfterTheFileUnderWayAndLetsNobodyElseWorkMeanwhile) {
    std::atomic<ConsoleProgram*> running = nullptr;
    int answered = 0;
    std::string other;
    service_.BeforeAnswering = [&](HttpPeer::Answer&) {
        if (++answered != 8) return;
        other = run(download);
        running.load()->send(SIGINT);
    };
    ConsoleProgram program(folder_, download);
    running = &program;
    EXPECT_EQ(program.wait(), 130);
    EXPECT_EQ(service_.paths().back(), "/archive/2004/03/07/B20040307.TXT");
    EXPECT_EQ(other, "5 !Program is already running\n");
    EXPECT_TRUE(folder_.has("clips/07032004/B20040307.TXT"));
    service_.BeforeAnswering = nullptr;
    EXPECT_EQ(run(download)[0], '0');
}

using Tree = std::map<std::string, std::string>;

Tree treeOf(const TempFolder& folder) {
    Tree tree;
    for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
        const std::string name = fs::relative(entry.path(), folder.path()).string();
        if (entry.is_regular_file() && (name.starts_with("clips/") || name.starts_with("ADV") || name[0] == '.'))
            tree[name] = folder.get(name);
    }
    return tree;
}

TEST_F(EndToEndTest, aRunThatWasKilledAtAnyMomentIsMadeGoodByTheNext) {
    ASSERT_EQ(run(download)[0], '0');
    const Tree whole = treeOf(folder_);
    ASSERT_EQ(whole.size(), 12U);
    constexpr int requests = 12;
    constexpr int moments = 4 * requests;
    for (int moment = 0; moment < moments; ++moment) {
        // At each request: before its answer, in the middle of it, and up to two milliseconds after it.
        std::atomic<ConsoleProgram*> running = nullptr;
        int answered = 0;
        service_.BeforeAnswering = [&](HttpPeer::Answer& answer) {
            if (++answered != moment / 4 + 1) return;
            while (running == nullptr)
                std::this_thread::yield();
            const int turn = moment % 4;
            if (turn == 0) return running.load()->send(SIGKILL);
            if (turn == 1) answer.Bytes.resize(answer.Bytes.size() / 2);
            answer.Stalls = turn == 1;
            answer.Sent = [&, turn] {
                std::this_thread::sleep_for(std::chrono::microseconds{turn == 1 ? 0 : (turn - 2) * 700 + moment * 25});
                running.load()->send(SIGKILL);
            };
        };
        if (moment % 3 != 0) fs::remove_all(folder_.path() / "clips/07032004");
        {
            ConsoleProgram program(folder_, download);
            running = &program;
            EXPECT_EQ(program.wait(), -SIGKILL) << moment;
        }
        for (const auto& [name, content] : treeOf(folder_)) {
            if (name.find(".DIR") != std::string::npos || name.find(".vell-") != std::string::npos) continue;
            ASSERT_TRUE(whole.contains(name) && content == whole.at(name)) << moment << " half a file: " << name;
        }
        service_.BeforeAnswering = nullptr;
        ASSERT_EQ(run(download)[0], '0') << moment;
        ASSERT_EQ(treeOf(folder_), whole) << moment;
    }
}

}  // namespace
}  // namespace vell::test
