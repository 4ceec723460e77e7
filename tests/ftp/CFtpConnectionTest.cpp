// SPDX-License-Identifier: MIT
#include <algorithm>
#include <optional>

#include "ftp/CFtpConnection.h"
#include "tests/ftp/FtpFixture.h"
#include "tests/ftp/ScriptedServer.h"

namespace vell::test {
namespace {

using namespace std::string_literals;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class CFtpConnectionTest : public FtpFixture {
  protected:
    void connectTo(ScriptedServer& server) {
        ftp.Port = server.port();
        ASSERT_TRUE(ftp.Connect()) << ftp.GetFtpErrorDescription();
        told.clear();
        server.commands.clear();
    }
    // What the Stop button does when a close is refused because a transfer runs.
    void stop() {
        EXPECT_FALSE(ftp.CloseConnection());
        EXPECT_EQ(ftp.FtpGetLastError(), 59);
        ftp.CancelTransfer();
        ftp.BreakeConnection();
        EXPECT_TRUE(ftp.CloseConnection());
    }
};

TEST_F(CFtpConnectionTest, tellsTheWholeDialogueInItsOrderWithThePasswordMasked) {
    ScriptedServer server(sockets, loop);
    server.on("RETR", "+hello|=|~9|150 Coming|~9|226 Sent");
    ftp.Port = server.port();
    EXPECT_THAT((std::vector{ftp.Connect(), ftp.downloadFile("a.pdf", local("a.pdf"), 0), ftp.CloseConnection()}),
                Each(true));
    EXPECT_EQ(ftp.CurrentDirectory(), "/home");
    EXPECT_THAT(told, ElementsAre("State 0", "State 1", "State 2", "220 Ready", "State 3", "USER vell", "331 Password?",
                                  "PASS **********", "230 In", "PWD", "257 \"/home\"", "TYPE I", "200 Fine", "State 5",
                                  StartsWith("PORT 127,0,0,1,"), "200 Fine", "State 6", "RETR a.pdf", "150 Coming",
                                  "State 9", "Down 5", "226 Sent", "State 10", "QUIT", "221 Bye"));
    EXPECT_EQ(server.commands.at(1), "PASS ruxo");
}

TEST_F(CFtpConnectionTest, logsInWithEveryServerThatLetsItIn) {
    struct Case {
        std::string Command, Steps;
        int Error;  // 0: logged in
        std::size_t Commands;
    };
    // clang-format off
    for (const Case& c : std::vector<Case>{
             {"", "220-Hi\r\n 220 no\r\n220 Go", 0, 3}, {"", ">220|~9|> H|~9|i", 0, 3},
             {"USER", "230 In", 0, 2}, {"PASS", "230-Hi|~60000|226 no|230 In", 0, 3},
             {"", "120 Later", 37, 0}, {"", "421 Full|!", 41, 0}, {"", "~99999", 58, 0}, {"", "!", 7, 0},
             {"USER", "530 Who?", 52, 1}, {"USER", "!", 7, 1}, {"PASS", "530 No", 52, 2}, {"PASS", "!", 7, 2},
             {"PASS", "230-Hi|!", 7, 2}, {"PASS", "230-Hi|>" + std::string(70'000, 'x'), 16, 2},
         }) {
        // clang-format on
        SCOPED_TRACE(c.Steps.substr(0, 60));
        for (const bool split : {false, true}) {
            ScriptedServer server(sockets, loop);
            server.splitsReplies = split && c.Steps.size() < 100;
            server.on(c.Command, c.Steps);
            ftp.Port = server.port();
            EXPECT_EQ(ftp.Connect(), c.Error == 0);
            EXPECT_EQ(ftp.IsConnected(), c.Error == 0);
            EXPECT_EQ(c.Error == 0 ? 0 : ftp.FtpGetLastError(), c.Error);
            EXPECT_EQ(server.commands.size(), c.Commands);
        }
    }
}

TEST_F(CFtpConnectionTest, needsAServerAndAPasswordUnlessItIsAnonymous) {
    ScriptedServer server(sockets, loop);
    ScriptedServer another(sockets, loop);
    ftp.Port = server.port();
    ftp.FtpServer.clear();
    EXPECT_FALSE(ftp.Connect());
    EXPECT_THAT(told, IsEmpty());
    ftp.FtpServer = "127.0.0.1";
    ftp.Password.clear();
    EXPECT_FALSE(ftp.Connect());
    EXPECT_THAT(server.commands, IsEmpty());
    ftp.UserName.clear();
    connectTo(another);
    EXPECT_EQ(ftp.UserName, "anonymous");
    EXPECT_FALSE(ftp.Connect());  // nobody listens any more
    EXPECT_EQ(ftp.FtpGetLastError(), 6);
    EXPECT_LT(seconds(), 1);
}

TEST_F(CFtpConnectionTest, downloadsWholeFilesAndTellsAtOnceWhyItCannot) {
    struct Case {
        std::string Command, Steps;
        int Error;  // 0: downloaded; 58 is the one that may take its time
        std::string Bytes;
        bool Connected = true;
        int Offset = 0;
    };
    const std::string big(300'000, '\xFF');
    // clang-format off
    for (const Case& c : std::vector<Case>{
             {"RETR", "150 a\r\n226 b|+new|=", 0, "new"},
             {"RETR", "+new|=|~99|150 a|226 b", 0, "new"},
             {"RETR", "125 a|+" + big + "|=|~4000|250 b", 0, big},
             {"RETR", "150 a\r\n226 b|~4000|+new|=", 0, "new"},
             {"RETR", "150 a|+n|~4000|+e|~4000|+w|~4000|=|226 b", 0, "new"},
             {"RETR", "150-a\r\n226 no\r\n150 \0\xFF\r\n226-b\r\n 226 no\r\n226 c|+new|="s, 0, "new"},
             {"RETR", "150 a|=|226 b", 0, ""},
             {"RETR", "150 a|+new|=|226 b", 0, "olnew", true, 2},
             {"REST", "502 No", 49, "old", true, 1},
             {"RETR", "550 No", 54, "old"}, {"RETR", "425 No", 42, "old"}, {"PORT", "500 Illegal", 47, "old"},
             {"RETR", "150 a|+ne|=|451 b", 45, "ne"},
             {"RETR", "150 a|+ne|~9|426 b", 43, "ne", false}, {"RETR", "150 a\r\n426 b", 43, "old", false},
             {"TYPE", "421 Idle|!", 41, "old", false},
             {"TYPE", "!", 7, "old", false}, {"PORT", "!", 7, "old", false}, {"RETR", "!", 7, "old", false},
             {"RETR", "150 a|+ne|~9|!", 7, "ne", false},
             {"TYPE", "~99999", 58, "old", false}, {"RETR", "150 a|+ne|~99999", 58, "ne", false},
             {"RETR", "150 a\r\n226 b", 58, ""},
             {"RETR", ">150-" + std::string(1'000'000, 'x'), 16, "old", false},
             {"TYPE", std::string(100'000, '\n'), 16, "old", false},
         }) {
        // clang-format on
        SCOPED_TRACE(c.Command + " " + c.Steps.substr(0, 60));
        folder.put("a.pdf", "old");
        ScriptedServer server(sockets, loop);
        server.on(c.Command, c.Steps);
        connectTo(server);
        const double begin = seconds();
        EXPECT_EQ(ftp.downloadFile("a.pdf", local("a.pdf"), c.Offset), c.Error == 0) << ftp.GetFtpErrorDescription();
        if (c.Error != 0) {
            EXPECT_EQ(ftp.FtpGetLastError(), c.Error);
            EXPECT_NEAR(seconds() - begin, c.Error == 58 ? ftp.Timeout + 1 : 0, 0.3);  // the tick after the last one
        }
        EXPECT_EQ(folder.get("a.pdf"), c.Bytes);
        EXPECT_EQ(std::ranges::count(told, "Down 5"), c.Bytes == "olnew" ? 1 : 0);
        EXPECT_EQ(ftp.IsConnected(), c.Connected);
        EXPECT_FALSE(ftp.Busy());
        ftp.BreakeConnection();
    }
}

struct Received : OutputFile {
    void Write(std::string_view bytes) override {
        if (Full) throw RunTimeError(61, "Disk full");
        Slows();
        Bytes += bytes;
    }
    void Close() override { FAIL() << "it is the caller's to close"; }
    std::string Bytes;
    bool Full = false;
    std::function<void()> Slows = [] {};
};

TEST_F(CFtpConnectionTest, writesToTheFileItIsHandedAndLeavesTheDiskAlone) {
    folder.put("a.pdf", "old");
    ScriptedServer server(sockets, loop);
    connectTo(server);
    Received file;
    server.on("RETR", "150 a|+new|=|226 b");
    EXPECT_TRUE(ftp.downloadFile("a.pdf", file, 3'000'000'000)) << ftp.GetFtpErrorDescription();
    EXPECT_THAT(server.commands, Contains("REST 3000000000"));
    server.on("RETR", "550 No");
    EXPECT_FALSE(ftp.downloadFile("a.pdf", file, 0));
    EXPECT_EQ(file.Bytes, "new");
    file.Full = true;
    server.on("RETR", "150 a|+new|=|226 b");
    EXPECT_FALSE(ftp.downloadFile("a.pdf", file, 0));
    EXPECT_EQ(ftp.GetFtpErrorDescription(), "Disk full");
    EXPECT_EQ(folder.get("a.pdf"), "old");
}

TEST_F(CFtpConnectionTest, losesNothingWhenTheServerSaysMoreThanItOwes) {
    struct Case {
        std::string Command, Steps;
        bool Connected = true;
    };
    const std::string file = "150 a|+new|=|226 b";
    // clang-format off
    for (const Case& c : std::vector<Case>{
             {"RETR", file + "\r\n226 b"}, {"RETR", file + "|~9|226 b"}, {"RETR", file + "\r\n"}, {"RETR", file + "|~9|"
              ">\r\n"}, {"RETR", file + "|~9|200 Hi"}, {"RETR", file + "|~9|>25"}, {"RETR", "200 late|" + file},
             {"TYPE", "226 late|200 Fine"}, {"TYPE", "200 late|200 Fine"}, {"TYPE", ">\r\n|200 Fine"},
             {"RETR", file + "\r\n421 Idle", false}, {"RETR", file + "|~9|421 Idle", false},
         }) {
        // clang-format on
        SCOPED_TRACE(c.Command + " " + c.Steps);
        ScriptedServer server(sockets, loop);
        server.on("RETR", file);
        server.on(c.Command, c.Steps);
        connectTo(server);
        for (int i = 0; i < 2 && ftp.IsConnected(); ++i) {
            EXPECT_TRUE(ftp.downloadFile("a.pdf", local("a.pdf"), 0)) << ftp.GetFtpErrorDescription();
            EXPECT_EQ(folder.get("a.pdf"), "new");
            for (int turn = 0; turn < 5; ++turn)
                loop.WaitForEvents(10);
            if (c.Steps.ends_with(">25")) server.on("TYPE", ">0 b\r\n|200 Fine");
            server.on("RETR", file);
        }
        EXPECT_EQ(ftp.IsConnected(), c.Connected);
        EXPECT_TRUE(ftp.CloseConnection());
    }
    ScriptedServer server(sockets, loop);
    server.on("RETR", file + "|~9|421 Idle|!");
    connectTo(server);
    EXPECT_TRUE(ftp.downloadFile("a.pdf", local("a.pdf"), 0));
    clock.advance(std::chrono::milliseconds{9});
    loop.DoEvents();
    EXPECT_TRUE(ftp.CloseConnection());  // the server was the first to leave
    EXPECT_LT(seconds(), 5);
}

TEST_F(CFtpConnectionTest, takesAFileForWholeWhenAllOfItCameThoughTheServerNeverSaysSo) {
    struct Case {
        std::string AfterTheFile;
        std::optional<std::int64_t> Length;
        int Error;  // 0: it counts
    };
    // clang-format off
    for (const Case& c : std::vector<Case>{
             {"~99999", 5, 0}, {"~99999", {}, 0}, {"~99999", 6, 58}, {"!", 5, 0}, {"!", {}, 7}, {"421 b", 5, 41}, {"426 b", 5, 43},
         }) {
        // clang-format on
        SCOPED_TRACE(c.AfterTheFile);
        ScriptedServer server(sockets, loop);
        server.on("RETR", "150 a|+new|=|" + c.AfterTheFile);
        connectTo(server);
        Received file;
        const double begin = seconds();
        EXPECT_EQ(ftp.downloadFile("a.pdf", file, 2, c.Length), c.Error == 0);
        EXPECT_LT(seconds() - begin, ftp.Timeout + 1.3);
        EXPECT_EQ(c.Error == 0 ? 0 : ftp.FtpGetLastError(), c.Error);
        EXPECT_FALSE(ftp.IsConnected());
    }
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(CFtpConnectionTest, givesUpATransferThatOnlyDripsForFiveMinutes) {
    for (const std::size_t everyFourSeconds : {250U, 260U}) {
        std::string steps = "150 a|";
        for (int second = 0; second < 400; second += 4)
            steps += "+" + std::string(everyFourSeconds, 'x') + "|~4000|";
        ScriptedServer server(sockets, loop);
        server.on("RETR", steps + "=|226 b");
        connectTo(server);
        Received file;
        const double begin = seconds();
        EXPECT_EQ(ftp.downloadFile("a.pdf", file, 0), everyFourSeconds > 256);
        EXPECT_NEAR(seconds() - begin, everyFourSeconds > 256 ? 400 : 302, 3);
    }
    EXPECT_EQ(ftp.FtpGetLastError(), 33);
    ScriptedServer server(sockets, loop);
    server.on("RETR", "150 a|+x|~9|+x|=|226 b");
    connectTo(server);
    Received file;
    file.Slows = [this] { clock.advance(std::chrono::minutes{6}); };  // a full disk that somebody is asked about
    EXPECT_TRUE(ftp.downloadFile("a.pdf", file, 0));
}

TEST_F(CFtpConnectionTest, asksWhetherToKeepWaitingWhenSomebodyIsThere) {
    ScriptedServer server(sockets, loop);
    server.on("CWD", "~15000|250 Done");
    connectTo(server);
    answer = [this] { return asked.size() < 4 ? Answer::Yes : Answer::No; };
    EXPECT_TRUE(ftp.SetCurrentDirectory("x"));
    EXPECT_THAT(asked, testing::SizeIs(2));
    EXPECT_EQ(asked.at(0),
              "A time-out occurred while communicating with the server.The server took too long to respond.\r\n\r\n"
              "Would you like to wait for server response?");
    server.on("CWD", "~99999");
    EXPECT_FALSE(ftp.SetCurrentDirectory("x"));
    EXPECT_EQ(ftp.FtpGetLastError(), 58);
    EXPECT_FALSE(ftp.IsConnected());
    EXPECT_THAT(asked, testing::SizeIs(4));
    ScriptedServer another(sockets, loop);
    another.on("CWD", "~99999");
    connectTo(another);
    ftp.AskOnTimeout = false;
    EXPECT_FALSE(ftp.SetCurrentDirectory("x"));
    EXPECT_EQ(ftp.FtpGetLastError(), 58);
    EXPECT_THAT(asked, testing::SizeIs(4));
}

TEST_F(CFtpConnectionTest, endsATransferAtOnceWhenItIsStoppedFromInsideItsWait) {
    struct Case {
        std::string Command, Steps, StopAt, Abor;
    };
    const std::string block(200'000, 'x');
    folder.put("big", block);
    // clang-format off
    for (const Case& c : std::vector<Case>{
             {"RETR", "150 a|+" + block, "Down", "426 a\r\n226 b"},
             {"RETR", "150 a|+" + block, "Down", "226 b"},
             {"RETR", "150 a|+" + block, "Down", "502 No|426 a"},
             {"RETR", "150 a", "150", "426 a|226 b"},
             {"RETR", "150 a\r\n226 b|+" + block, "226", "226 b"},
             {"RETR", "~500|425 a", "RETR", "226 b"},
             {"STOR", "150 a|+|~500", "Up", "426 a"},
             {"RETR", "150 a|+" + block, "Down", "~99999"},
         }) {
        // clang-format on
        SCOPED_TRACE(c.StopAt + " " + c.Abor);
        ScriptedServer server(sockets, loop);
        server.on(c.Command, c.Steps);
        server.on("ABOR", c.Abor);
        connectTo(server);
        bool stopped = false;
        onTold = [&](const std::string& what) {
            if (!what.starts_with(c.StopAt) || std::exchange(stopped, true)) return;
            EXPECT_FALSE(ftp.SetCurrentDirectory("second operation"));
            EXPECT_EQ(ftp.FtpGetLastError(), 11);
            stop();
        };
        const double begin = seconds();
        EXPECT_FALSE(c.Command == "STOR" ? ftp.UploadFile(local("big"), "b") : ftp.downloadFile("b", local("b"), 0));
        EXPECT_TRUE(stopped);
        EXPECT_LE(seconds() - begin, c.Abor == "~99999" ? ftp.Timeout + 1.2 : 1);
        EXPECT_FALSE(ftp.Busy());
        EXPECT_FALSE(ftp.IsConnected());
        EXPECT_THAT(asked, IsEmpty());
    }
}

TEST_F(CFtpConnectionTest, stopEndsTheWaitForALoginAndAnOpenQuestion) {
    ScriptedServer silent(sockets, loop);
    silent.on("", "~99999");
    ftp.Port = silent.port();
    const auto timer = loop.SetTimer(2000, [this] { EXPECT_TRUE(ftp.CloseConnection()); });
    EXPECT_FALSE(ftp.Connect());
    EXPECT_NEAR(seconds(), 2, 0.1);
    loop.KillTimer(timer);
    ScriptedServer server(sockets, loop);
    server.on("RETR", "150 a|+x|~99999");
    connectTo(server);
    answer = [this] { return stop(), Answer::Yes; };
    EXPECT_FALSE(ftp.downloadFile("a", local("a"), 0));
    EXPECT_THAT(asked, testing::SizeIs(1));
}

TEST_F(CFtpConnectionTest, failsWithoutADataConnectionOrALocalFile) {
    ScriptedServer server(sockets, loop);
    server.on("RETR", "150 a");
    server.on("LIST", "150 a\r\n226 b|+01-15-04 10:30AM 12 a.pdf\r\n01-15-04 10:30AM <DIR> d\r\n|=");
    connectTo(server);
    EXPECT_EQ(ftp.EnumFiles().Count(), 2);
    ftp.PassiveMode = true;
    for (const char* elsewhere : {"227 Somewhere (1,2,3)", "227 Another (127,0,0,2,200,1)"}) {
        server.on("PASV", elsewhere);
        EXPECT_EQ(ftp.EnumFiles().Count(), 0);
        EXPECT_EQ(ftp.FtpGetLastError(), 13);
    }
    server.on("PASV", "227 Nobody (127,0,0,1,0,1)");
    EXPECT_EQ(ftp.EnumFiles().Count(), 0);
    EXPECT_EQ(ftp.FtpGetLastError(), 6);
    EXPECT_THAT(logged, ElementsAre(StartsWith("wscData Error-->Number:10061, Description:")));
    ftp.PassiveMode = false;
    EXPECT_FALSE(ftp.downloadFile("a", local("no\\such\\folder"), 0));
    EXPECT_THAT(logged, Contains(StartsWith("downloadFile() ")));
    ftp.FtpServer = "::1";
    EXPECT_FALSE(ftp.Connect());
    EXPECT_THAT(ftp.GetFtpErrorDescription(), testing::HasSubstr("IPv4"));
}

TEST_F(CFtpConnectionTest, sendsNoArgumentThatCouldCarryASecondCommand) {
    ScriptedServer server(sockets, loop);
    connectTo(server);
    for (const std::string& bad : {"a\rb"s, "a\nb"s, "a\0b"s, "a\r\nDELE b"s}) {
        ftp.UserName = bad;
        EXPECT_THAT((std::vector{ftp.SetCurrentDirectory(bad), ftp.RenameFile(bad, "x"), ftp.RenameFile("x", bad),
                                 ftp.DeleteFile(bad), ftp.CreateDirectory(bad), ftp.RemoveDirectory(bad), ftp.Connect(),
                                 ftp.downloadFile(bad, local("x"), 0), ftp.UploadFile(local("x"), bad)}),
                    Each(false));
        EXPECT_EQ(ftp.EnumFilesCriteria(bad).Count(), 0);
        EXPECT_EQ(ftp.FtpGetLastError(), 48);
        EXPECT_THAT(ftp.GetFtpErrorDescription(), testing::HasSubstr("line end"));
    }
    EXPECT_THAT(server.commands, IsEmpty());
    EXPECT_TRUE(ftp.IsConnected());
}

}  // namespace
}  // namespace vell::test
