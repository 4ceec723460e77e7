// SPDX-License-Identifier: MIT
#include <atomic>
#include <map>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/text.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/ServicePeer.h"

namespace vell::test {

// The program as its user starts it, on a day of three clippings.
class EndToEndTest : public testing::Test {
  protected:
    EndToEndTest() {
        std::filesystem::create_directory(folder_.path() / "clips");
        folder_.put("vell.ini",
                    "[General]\r\nPrintAllDelay=0\r\n[Host]\r\nHost=service.example\r\nUid=ann\r\n[Download]"
                    "\r\nAutoUpdateCheck=0\r\nLocalDir=" +
                        folder_.text() + "/clips\r\n");
        service_.serve(3);
    }
    ChildProcess start(std::vector<std::string> arguments, const std::string& input = "") {
        arguments.insert(arguments.begin(), {VELL_CONSOLE, "--folder", folder_.text()});
        return ChildProcess(std::move(arguments), input);
    }
    // The exit code, the output, "!", and the error output.
    std::string run(std::vector<std::string> arguments, const std::string& input = "") {
        const Ended ended = start(std::move(arguments), input).end();
        return std::to_string(ended.Code) + " " + ended.Out + "!" + ended.Errors;
    }
    // Every file that the program has fetched, and whatever it has left behind but for parts.
    [[nodiscard]] std::map<std::string, std::string> tree() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.path())) {
            const std::string name = std::filesystem::relative(entry.path(), folder_.path()).string();
            const bool isPart = entry.path().filename().string().starts_with(".");
            const bool isOwn = name.starts_with("vell.") || name == "lastrun.txt";
            if (entry.is_regular_file() && !isPart && !isOwn) files[name] = folder_.get(name);
        }
        return files;
    }
    const std::vector<std::string> download_{"download", "--date", "07/03/2004"};

    TempFolder folder_;
    ServicePeer service_;
};

TEST_F(EndToEndTest, fetchesADayListsItAndFetchesItAgain) {
    EXPECT_EQ(run({"list"}), "0 !No day has been fetched yet. 'vell-console download' fetches today's clippings.\n");
    const std::string first = run(download_);
    EXPECT_TRUE(first.starts_with("0 Getting list of files to download...\nGetting list of files to download: Done\n"));
    EXPECT_TRUE(first.ends_with("\nFinished: 3 of 3 clippings downloaded.\n!"));
    EXPECT_TRUE(run(download_).starts_with("0 "));
    EXPECT_EQ(run({"days"}), "0 07/03/2004\n!");
    std::string rows = "0 ";
    for (const std::string number : {"1", "2", "3"})
        rows += "-\tPAPER\tTITLE " + number + "\tTYPE\tCAT\tN" + number + "20040307.PDF\t" + folder_.text() +
                "/clips\\07032004\\N" + number + "20040307.PDF\n";
    EXPECT_EQ(run({"list", "--tsv"}), rows + "!");
    EXPECT_TRUE(run({"list", "--date", "07/03/2004"}).starts_with("0 07/03/2004   3 Clippings\nstrike\n   Newspaper"));
    EXPECT_TRUE(run({"list", "--date", "08/03/2004"}).starts_with("1 !The day 08/03/2004 has not been fetched."));
    EXPECT_FALSE(folder_.has("vell.log"));
}

TEST_F(EndToEndTest, aLargeFileTakesNoMoreMemoryThanASmallOne) {
    constexpr std::size_t megabyte = 1U << 20;
    service_.Answers[ServicePeer::pathOf("N120040307.PDF")] = {
        "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(64 * megabyte) + "\r\n\r\n", true};
    // What the sanitizer keeps of freed blocks would be counted.
    setenv("ASAN_OPTIONS", "quarantine_size_mb=1", 1);
    ChildProcess program = start(download_);
    unsetenv("ASAN_OPTIONS");
    const auto peakAfter = [&](std::size_t megabytes) {
        const std::string piece(megabyte, 'x');
        while (service_.sentBytes() < megabytes * megabyte && program.isRunning())
            service_.say(piece);
        return program.peakKilobytes();
    };
    const long early = peakAfter(8);
    EXPECT_GT(early, 0);
    EXPECT_LT(peakAfter(60), early + 16L * 1024);
}

// A message bus there may be; what talks on it was not installed with the program.
TEST_F(EndToEndTest, goesOnWithoutTheDesktopsServicesAndSaysSoInTheLog) {
    const std::string program = folder_.text() + "/bin/vell-console",
                      module = folder_.text() + "/libexec/vell/vell-gio.so";
    std::filesystem::create_directory(folder_.path() / "bin");
    std::filesystem::copy(VELL_CONSOLE, program);
    setenv("DBUS_SYSTEM_BUS_ADDRESS", ("unix:path=" + folder_.text() + "/vell.ini").c_str(), 1);
    folder_.put("vell.ini",
                "[General]\r\nDebug=1\r\n" + folder_.get("vell.ini").substr(folder_.get("vell.ini").find("[Host]")));
    std::vector<std::string> words{program, "--folder", folder_.text()};
    words.insert(words.end(), download_.begin(), download_.end());
    const Ended ended = ChildProcess(words).end();
    unsetenv("DBUS_SYSTEM_BUS_ADDRESS");
    EXPECT_EQ(ended.Code, 0) << ended.Errors;
    EXPECT_THAT(ended.Out, testing::EndsWith("Finished: 3 of 3 clippings downloaded.\n"));
    EXPECT_THAT(folder_.get("vell.log"), testing::HasSubstr("Refresh: Desktop services cannot be loaded: " + module));
}

TEST_F(EndToEndTest, endsWithACodeThatTellsHowItWent) {
    const std::string begin = "Getting list of files to download...\n";
    EXPECT_EQ(run({"download", "--date", "31/11/2004"})[0], '2');
    EXPECT_EQ(run({"download", "--from", "06/03/2004", "--to", "07/03/2004"})[0], '0');
    service_.Answers[ServicePeer::pathOf("N220040307.TXT")] = HttpPeer::status("404 Not Found");
    EXPECT_THAT(run(download_), testing::EndsWith("!1 file failed. The service does not have it.\n"
                                                  "N220040307.TXT: The service does not have it.\n"));
    service_.Answers[ServicePeer::listScript] = HttpPeer::ok("error 1002");
    EXPECT_EQ(run(download_), "0 " + begin + "Getting list of files to download: Done\nNo files to download found.\n!");
    service_.Answers[ServicePeer::listScript] = HttpPeer::status("500 No");
    EXPECT_EQ(run(download_), "1 " + begin +
                                  "Error while getting list of files to download\n"
                                  "!Quillon Service not available. Please try again later.\n");
    service_.Answers[ServicePeer::listScript] = HttpPeer::ok("error 1001");
    const auto asked = service_.requests().size();
    EXPECT_EQ(run(download_)[0], '1');
    EXPECT_EQ(service_.requests().size() - asked, 1U);
    EXPECT_EQ(run({"download", "--yes"})[0], '1');
    EXPECT_EQ(service_.requests().size() - asked, 1U + 4U);  // affirmed three times
    EXPECT_TRUE(run({"setup", "Pwd", "-"}, "secret\n").starts_with("0 Pwd = (set)\n!"));
}

TEST_F(EndToEndTest, printsOpensShowsMarksAndDeletesWhatIsNamedAndAsksBeforeMore) {
    const std::string path = std::getenv("PATH");
    for (const auto& [name, value] : std::map<std::string, std::string>{{"PATH", folder_.text() + ":" + path},
                                                                        {"XDG_DATA_HOME", folder_.text()},
                                                                        {"XDG_CONFIG_HOME", folder_.text()}})
        setenv(name.c_str(), value.c_str(), 1);
    folder_.put("lp", "#!/bin/sh\n");
    std::filesystem::permissions(folder_.path() / "lp", std::filesystem::perms::owner_all);
    folder_.put("applications/v.desktop", "[Desktop Entry]\nType=Application\nName=V\nExec=true %f\n");
    folder_.put("mimeapps.list", "[Default Applications]\napplication/pdf=v.desktop\n");
    for (const char* name : {"A.PDF", "B.PDF", "C.PDF"})
        folder_.put(std::string("clips/07032004/") + name, "%PDF-1.4\n");
    folder_.put("clips/07032004/A.TXT", "N\r\n\xED\xDD\xE1 2004\r\n");
    folder_.put("clips/07032004/ALLFILES.DIR",
                "A.PDF||N||one||\xCD\xDD\xE1||\r\nB.PDF||N||two||\xCD\xDD\xE1||\r\nC.PDF||N||three||Sport||\r\n\r\n");
    const std::string none = "There is no ", unasked =
                                                 "Nobody is at a terminal to answer. Say --yes to answer with yes "
                                                 "beforehand.\n";
    const std::string all = "!Print All: Do you want to print all documents for selected date?\n-> ";
    const std::string whole = "!Delete Day: Delete 07/03/2004 with 3 clippings?\n-> ";
    // Arguments between commas; the exit code with all that was written, or alone; the marks of the clippings then.
    for (const auto& [arguments, answer, marks] : std::vector<std::array<std::string, 3>>{
             {"print,b,X,A.pdf,--date,07/03/2004",
              "1 !" + none +
                  "clipping 'X' on 07/03/2004. 'vell-console list --tsv --date 07/03/2004' shows what there is.\n",
              "PP-"},
             {"open,c", "0 !", "PPO"},
             {"list,--tsv,--find,ΝΕΑ 2004,--unread,--category,νέα",
              "0 P\tN\tone\t\tΝέα\tA.PDF\t" + folder_.text() + "/clips\\07032004\\A.PDF\n!", "PPO"},
             {"list,--tsv,--category,Sport,--unread", "0 !", "PPO"},
             {"show,a,b", "1 N\nνέα 2004\n!B.PDF: This clipping has no text. Open it to see its page.\n", "PPO"},
             {"print,--category,νέα,Νέα,X,--yes",
              "1 Printing 1/2 A.PDF\nPrinting 2/2 B.PDF\n!" + none +
                  "category 'X' on 07/03/2004. 'vell-console list --date 07/03/2004' shows what there is.\n",
              "PPO"},
             {"print,--all", "1 " + all + "No\n" + unasked, "PPO"},
             {"print,--all,--yes", "0 Printing 1/3 one\nPrinting 2/3 two\nPrinting 3/3 three\n" + all + "Yes\n", "PPB"},
             {"print", "2", "PPB"},
             {"print,--all,A", "2", "PPB"},
             {"open", "2", "PPB"},
             {"mark,--unopened,X,c",
              "1 !" + none +
                  "clipping 'X' on 07/03/2004. 'vell-console list --tsv --date 07/03/2004' shows what there is.\n",
              "PPP"},
             {"mark,--opened,C.PDF,--date,07/03/2004", "0 !", "PPB"},
             {"mark,C", "2", "PPB"},
             {"mark,--opened,--unopened,C", "2", "PPB"},
             {"mark,--opened", "2", "PPB"},
             {"delete,31/02/2004", "2", "PPB"},
             {"delete,08/03/2004", "1", "PPB"},
             {"delete,07/03/2004", "1 " + whole + "No\n" + unasked, "PPB"},
             {"delete,07/03/2004,--yes", "0 " + whole + "Yes\n", ""},
             {"open,A", "1", ""}}) {
        const auto pieces = Split(arguments, ",");
        const std::string told = run({pieces.begin(), pieces.end()});
        EXPECT_EQ(told.substr(0, answer.size() == 1 ? 1 : told.size()), answer) << arguments << told;
        const std::string rows = run({"list", "--tsv"}).substr(2);
        std::string marked;
        for (const std::string_view row : Split(rows, "\n"))
            if (row.ends_with(".PDF")) marked += row.front();
        EXPECT_EQ(marked, marks) << arguments;
    }
    setenv("PATH", path.c_str(), 1);
    unsetenv("XDG_DATA_HOME");
    unsetenv("XDG_CONFIG_HOME");
}

TEST_F(EndToEndTest, saysWhatItMayNotWriteAndLeavesWhatIsThere) {
    namespace fs = std::filesystem;
    ASSERT_EQ(run(download_)[0], '0');
    const auto before = tree();
    for (const auto& [place, arguments, told] : std::vector<std::array<std::string, 3>>{
             {"clips", "download,--date,08/03/2004", "Error! Download folder not created."},
             {"clips/07032004", "download,--date,07/03/2004", "\nError while getting list of files to download\n"},
             {"", "setup,TimeOut,30", "The settings file could not be written"}}) {
        fs::permissions(folder_.path() / place, fs::perms::owner_read | fs::perms::owner_exec);
        if (access((folder_.path() / place).c_str(), W_OK) == 0) GTEST_SKIP() << "nothing is refused to this user";
        const auto words = Split(arguments, ",");
        const std::string answer = run({words.begin(), words.end()});
        fs::permissions(folder_.path() / place, fs::perms::owner_all);
        EXPECT_EQ(answer[0], '1') << place;
        EXPECT_NE(answer.find(told), std::string::npos) << answer;
        EXPECT_EQ(tree(), before) << place;
    }
}

TEST_F(EndToEndTest, stopsAtSigintAfterTheFileUnderWayAndLetsNobodyElseWorkMeanwhile) {
    std::atomic<ChildProcess*> running = nullptr;
    int answered = 0;
    std::string other;
    service_.BeforeAnswering = [&](HttpPeer::Answer&) {
        if (++answered != 8) return;
        other = run(download_) + run({"print", "--all", "--yes"}) + run({"delete", "07/03/2004", "--yes"});
        running.load()->send(SIGINT);
    };
    ChildProcess program = start(download_);
    running = &program;
    EXPECT_EQ(program.end().Code, 130);
    EXPECT_TRUE(service_.wasAskedLastFor("N220040307.TXT"));
    const std::string refused = "5 !Program is already running\n";
    EXPECT_EQ(other, refused + refused + refused);
    EXPECT_TRUE(folder_.has("clips/07032004/N220040307.TXT"));
}

TEST_F(EndToEndTest, aRunThatWasKilledAtAnyMomentIsMadeGoodByTheNext) {
    service_.serve(3, 300'000);  // large enough to be cut in the middle
    ASSERT_EQ(run(download_)[0], '0');
    const auto whole = tree();
    ASSERT_EQ(whole.size(), 12U);
    for (int moment = 0; moment < 46; ++moment) {
        // At each of the 12 requests: before its answer, in the middle of it, and up to two milliseconds after it,
        // when the run may have ended by itself.
        std::atomic<ChildProcess*> running = nullptr;
        int answered = 0;
        service_.BeforeAnswering = [&, turn = moment % 4](HttpPeer::Answer& answer) {
            if (++answered != moment / 4 + 1) return;
            while (running == nullptr)
                std::this_thread::yield();
            if (turn < 2) answer.Bytes.resize(answer.Bytes.size() / 2 * static_cast<std::size_t>(turn));
            answer.Stalls = turn < 2;
            answer.Sent = [&, turn] {
                std::this_thread::sleep_for(std::chrono::microseconds{turn < 2 ? 0 : (turn - 2) * 700 + moment * 25});
                running.load()->send(SIGKILL);
            };
        };
        if (moment % 3 != 0) std::filesystem::remove_all(folder_.path() / "clips/07032004");
        ChildProcess program = start(download_);  // lives as long as the peer may want to kill it
        running = &program;
        EXPECT_THAT(program.end().Code, testing::AnyOf(-SIGKILL, moment % 4 < 2 ? -SIGKILL : 0)) << moment;
        auto left = tree();
        std::erase_if(left, [](const auto& file) { return file.first.find(".DIR") != std::string::npos; });
        EXPECT_THAT(left, testing::Each(testing::Truly([&](const auto& file) {
                        const auto known = whole.find(file.first);
                        return known != whole.end() && known->second == file.second;
                    })))
            << moment;
        service_.BeforeAnswering = nullptr;
        ASSERT_EQ(run(download_)[0], '0') << moment;
        ASSERT_EQ(tree(), whole) << moment;
    }
}

}  // namespace vell::test
