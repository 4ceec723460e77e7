// SPDX-License-Identifier: MIT
#include <csignal>

#include <gmock/gmock.h>

#include "tests/demo/DemoService.h"
#include "tests/demo/FtpCaller.h"

namespace vell::test {
namespace {

using namespace std::string_literals;
using testing::ContainsRegex;

class DemoFtpTest : public testing::Test {
  protected:
    // Commands, each with the code that it must get.
    void expectCodes(const std::vector<std::pair<std::string, int>>& exchanges) {
        for (const auto& [command, code] : exchanges)
            EXPECT_EQ(caller_.tell(command), code) << command;
    }

    SmallTree tree_;
    DemoService service_{tree_, {"--rate", "1000"}};  // slow enough that something can happen in mid-transfer
    FtpCaller caller_{service_.ftp()};
};

TEST_F(DemoFtpTest, letsInTheClientsOfTheServiceAndThePeopleOfTheTable) {
    const std::tuple<const char*, const char*, int> cases[] = {
        {"vell", "ruxo", 230}, {"demo", "demo", 230},     {"vell", "Ruxo", 530},       {"VELL", "ruxo", 530},
        {"demo", "ruxo", 530}, {"user", "password", 530}, {"anonymous", "a@b.c", 530}, {"", "", 530},
    };
    for (const auto& [user, password, code] : cases)
        EXPECT_EQ(FtpCaller(service_.ftp(), user, password).lastCode(), code) << user;
    expectCodes({{"USER vell", 331},
                 {"PWD", 530},
                 {"RETR ADVERTISMENT.JPG", 530},
                 {"PASV", 530},
                 {"NOOP", 200},
                 {"PASS ruxo", 230},
                 {"PWD", 257},
                 {"QUIT", 221}});
    EXPECT_EQ(caller_.reply(), "");
}

TEST_F(DemoFtpTest, answersEveryCommandWithItsCode) {
    expectCodes({{"TYPE I", 200},  {"type a", 200},  {"TYPE E", 504},  {"MODE B", 504},     {"STRU R", 504},
                 {"ALLO 10", 202}, {"REST 10", 350}, {"REST -1", 501}, {"REST", 501},       {"STAT", 211},
                 {"ABOR", 226},    {"EPSV", 502},    {"HELO x", 500},  {"", 500},           {"CWD a\tb", 501},
                 {"RNTO x", 503},  {"LIST", 425},    {"NOOP", 200},    {"SITE CHMOD", 504}, {"RETR none", 550}});
    EXPECT_EQ(caller_.ask("SYST"), "215 UNIX Type: L8");
    EXPECT_EQ(caller_.ask("FEAT"), "211-Extensions:\n SIZE\n REST STREAM\n211 End.");
}

TEST_F(DemoFtpTest, walksTheTreeAndNeverLeavesIt) {
    const std::pair<const char*, const char*> cases[] = {
        {"CWD torvoarchive", "/torvoarchive"},
        {"CDUP", "/"},
        {"CDUP", "/"},
        {"CWD 07032004", "/07032004"},
        {"CWD ../09032004/.", "/09032004"},
        {"CWD /upload/", "/upload"},
    };
    for (const auto& [command, directory] : cases) {
        caller_.tell(command);
        EXPECT_EQ(caller_.ask("PWD"), "257 \"" + std::string(directory) + "\" is the current directory.") << command;
    }
    for (const char* nowhere : {"../../../../etc", "08032004", "ADVERTISMENT.JPG", "a\\b", "a:b"})
        EXPECT_EQ(caller_.tell(std::string("CWD ") + nowhere), 550) << nowhere;
}

TEST_F(DemoFtpTest, sendsFilesOverBothKindsOfConnectionsAndFromAnyByteOn) {
    tree_.put("07032004/EMPTY.TXT", "");
    EXPECT_EQ(caller_.tell("CWD torvoarchive"), 250);
    const std::string name = "NEA02_20040307.PDF", content = contentOf(name);
    for (const auto way : {FtpCaller::Way::Passive, FtpCaller::Way::Active}) {
        EXPECT_EQ(caller_.receive("RETR nea02_20040307.pdf", way), content);
        EXPECT_EQ(caller_.receive("RETR EMPTY.TXT", way), "");
        EXPECT_EQ(caller_.lastCode(), 226);
        for (const std::size_t offset : {std::size_t{1}, content.size()}) {
            EXPECT_EQ(caller_.tell("REST " + std::to_string(offset)), 350);
            EXPECT_EQ(caller_.receive("RETR " + name, way), content.substr(offset)) << offset;
            EXPECT_EQ(caller_.lastCode(), 226);
        }
        EXPECT_EQ(caller_.receive("RETR " + name, way), content) << "an offset is good for one transfer";
        caller_.tell("REST " + std::to_string(content.size() + 1));
        EXPECT_EQ(caller_.receive("RETR " + name, way), "");
        EXPECT_EQ(caller_.lastCode(), 550);
    }
    EXPECT_EQ(caller_.ask("SIZE " + name), "213 " + std::to_string(content.size()));
}

TEST_F(DemoFtpTest, showsTheFilesOfAllDaysInOneFolderButNeverItsOwn) {
    tree_.put("07032004/X.PDF", "an older one of the same name");
    EXPECT_EQ(caller_.receive("NLST torvoarchive"),
              "ADVERTISMENT.JPG\r\nNEA01_20040307.MT\r\nNEA01_20040307.PDF\r\nNEA01_20040307.TXT\r\n"
              "NEA01_20040309.MT\r\nNEA01_20040309.PDF\r\nNEA01_20040309.TXT\r\nNEA02_20040307.MT\r\n"
              "NEA02_20040307.PDF\r\nNEA02_20040307.TXT\r\nX.MT\r\nX.PDF\r\nX.TXT\r\n");
    EXPECT_EQ(caller_.receive("RETR torvoarchive/X.PDF"), contentOf("X.PDF"));
    EXPECT_EQ(caller_.receive("NLST"), "07032004\r\n09032004\r\nADVERTISMENT.JPG\r\ntorvoarchive\r\nupload\r\n");
    for (const char* name : {"/users.tsv", "/07032004/clippings.tsv", "/07032004/ALERT.TXT", "/torvoarchive/alert.txt",
                             "/torvoarchive/07032004/X.PDF", "/upload", "/07032004"}) {
        EXPECT_EQ(caller_.receive(std::string("RETR ") + name), "");
        EXPECT_EQ(caller_.lastCode(), 550) << name;
        EXPECT_EQ(caller_.tell(std::string("SIZE ") + name), 550) << name;
    }
}

TEST_F(DemoFtpTest, listsInUnixFormOrInDosForm) {
    const auto old = std::filesystem::file_time_type::clock::now() - std::chrono::hours{24 * 400};
    std::filesystem::last_write_time(tree_.path() / "07032004/NEA01_20040307.MT", old);
    const std::string size = std::to_string(contentOf("NEA01_20040307.PDF").size());
    const std::string two = "[0-9][0-9]", day = "[A-Z][a-z][a-z] [ 123][0-9] ";
    EXPECT_THAT(
        caller_.receive("LIST 07032004"),
        testing::AllOf(ContainsRegex("-rw-r--r-- +1 ftp +ftp +[0-9]+ " + day + " 20" + two + " NEA01_20040307.MT\r"),
                       ContainsRegex(" ftp +" + size + " " + day + two + ":" + two + " NEA01_20040307.PDF\r")));
    EXPECT_THAT(caller_.receive("LIST -la"),
                ContainsRegex("drwxr-xr-x +2 ftp +ftp +0 " + day + two + ":" + two + " 07032004\r"));
    EXPECT_EQ(caller_.tell("SITE DIRSTYLE"), 200);
    const std::string dosTime = two + "-" + two + "-" + two + "  " + two + ":" + two + "[AP]M +";
    EXPECT_THAT(caller_.receive("LIST 07032004"), ContainsRegex(dosTime + size + " NEA01_20040307.PDF\r"));
    EXPECT_EQ(caller_.ask("SYST"), "215 Windows_NT");
    const DemoService dos(tree_, {"--list-form", "DOS"});
    EXPECT_THAT(FtpCaller(dos.ftp()).receive("LIST"), ContainsRegex(dosTime + "<DIR> +07032004\r"));
}

TEST_F(DemoFtpTest, listsWhatAPatternOrANameAsksFor) {
    const std::tuple<const char*, const char*, int> cases[] = {
        {"torvoarchive/*0309.p?f", "NEA01_20040309.PDF\r\n", 226},
        {"*2004", "07032004\r\n09032004\r\n", 226},
        {"-a 07032004/*02*.MT", "NEA02_20040307.MT\r\n", 226},
        {"/torvoarchive/X.MT", "X.MT\r\n", 226},
        {"*.none", "", 226},
        {"07032004/none", "", 550},
        {"../x/*", "", 550},
        {"a\\b/*", "", 550},
    };
    for (const auto& [argument, names, code] : cases) {
        EXPECT_EQ(caller_.receive(std::string("NLST ") + argument), names) << argument;
        EXPECT_EQ(caller_.lastCode(), code) << argument;
    }
}

TEST_F(DemoFtpTest, takesFilesAndChangesInTheDaysAndInUpload) {
    const std::string bytes = contentOf("some upload");
    const std::tuple<std::string, std::string, std::string> uploads[] = {
        {"STOR", bytes, bytes}, {"APPE", "++", bytes + "++"}, {"STOR", "", ""}, {"STOR", bytes, bytes}};
    for (const auto& [command, sent, held] : uploads) {
        EXPECT_EQ(caller_.store(command + " upload/a.bin", sent), 226);
        EXPECT_EQ(tree_.get("upload/a.bin"), held);
    }
    caller_.tell("REST 5");
    EXPECT_EQ(caller_.store("STOR upload/a.bin", "12345"), 226);
    EXPECT_EQ(tree_.get("upload/a.bin"), bytes.substr(0, 5) + "12345" + bytes.substr(10));
    EXPECT_EQ(caller_.store("STOR 07032004/NEW.PDF", bytes), 226);
    EXPECT_EQ(tree_.get("07032004/NEW.PDF"), bytes);
    expectCodes({{"MKD upload/sub", 257},
                 {"MKD upload/sub", 550},
                 {"RNFR upload/a.bin", 350},
                 {"RNTO upload/sub/b.bin", 250},
                 {"RNTO upload/sub/c.bin", 503},
                 {"RMD upload/sub", 550},
                 {"DELE upload/sub", 550},
                 {"RMD upload/sub/b.bin", 550},
                 {"DELE upload/sub/b.bin", 250},
                 {"RNFR upload/none", 550},
                 {"RMD upload/sub", 250},
                 {"DELE 07032004/NEW.PDF", 250}});
    EXPECT_FALSE(tree_.has("07032004/NEW.PDF"));
    EXPECT_FALSE(tree_.has("upload/sub"));
}

TEST_F(DemoFtpTest, writesNowhereElse) {
    const TempFolder outside;
    outside.put("kept.txt", "kept");
    std::filesystem::create_directories(tree_.path() / "upload");
    std::filesystem::create_directory_symlink(outside.path(), tree_.path() / "upload/link");
    for (const std::string name :
         {"/users.tsv", "/new.txt", "/07032004/clippings.tsv", "/07032004/Alert.txt", "/torvoarchive/X.PDF",
          "../../new.txt", "upload/../new.txt", "/upload", "/07032004", "/ADVERTISMENT.JPG", "/upload/.hidden",
          "/upload/a b", "/upload/a\\b", "/upload/link/new.txt", "/upload/link/kept.txt", "/other/new.txt", "/"}) {
        EXPECT_EQ(caller_.store("STOR " + name, "overwritten"), 553) << name;
        EXPECT_EQ(caller_.store("APPE " + name, "overwritten"), 553) << name;
        expectCodes({{"DELE " + name, 550},
                     {"RMD " + name, 550},
                     {"MKD " + name, 550},
                     {"RNFR " + name, 550},
                     {"RNFR /07032004/NEA01_20040307.PDF", 350},
                     {"RNTO " + name, 550}});
    }
    EXPECT_EQ(caller_.receive("RETR /upload/link/kept.txt"), "");
    EXPECT_EQ(outside.get("kept.txt"), "kept");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(outside.path()), {}), 1);
    for (const char* name : {"NEA01_20040307.PDF", "X.PDF", "ADVERTISMENT.JPG"})
        EXPECT_EQ(caller_.receive(std::string("RETR /torvoarchive/") + name), contentOf(name));
}

TEST_F(DemoFtpTest, connectsToNobodyButItsOwnPeer) {
    for (const char* argument : {"10,0,0,5,19,137", "127,0,0,2,19,137", "127,0,0,1,0,25", "127,0,0,1,256,1",
                                 "127,0,0,1,19", "127,0,0,1,19,137,1", "a,b,c,d,e,f", ""})
        EXPECT_EQ(caller_.tell(std::string("PORT ") + argument), 501) << argument;
    EXPECT_EQ(caller_.tell("LIST"), 425);
    EXPECT_NE(caller_.receive("LIST"), "");
}

TEST_F(DemoFtpTest, takesCommandsInPiecesTogetherOverlongAndWithTelnetCodes) {
    for (const char c : std::string("CWD 07032004\r\n"))
        caller_.send({&c, 1});
    EXPECT_EQ(caller_.code(), 250);
    caller_.send("PWD\nnoop\r\n\xFF\xFB\x01NO\xFF\xF1OP\r\nRETR " + std::string(1 << 20, 'x') + "\r\nCDUP\r\n");
    for (const int code : {257, 200, 200, 500, 250})
        EXPECT_EQ(caller_.code(), code);
}

TEST_F(DemoFtpTest, aTransferEndsWithAborOrItsSessionAndOthersGoOn) {
    tree_.put("07032004/LONG.PDF", std::string(24 << 20, 'x'));
    const std::string telnet = "\xFF\xF4\xFF\xF2";
    for (const std::string& abort : {"ABOR\r\n"s, telnet + "ABOR\r\n", ""s}) {
        auto data = caller_.passive();
        EXPECT_EQ(caller_.tell("RETR /07032004/LONG.PDF"), 150);
        EXPECT_EQ(data.get(), 'x');
        EXPECT_EQ(caller_.tell("NOOP"), 200);
        if (!abort.empty()) {
            caller_.send(abort);
            EXPECT_EQ(caller_.code(), 426);
            EXPECT_EQ(caller_.code(), 226);
        } else {
            caller_.hangUp();
        }
        EXPECT_LT(rest(data).size(), std::size_t{16 << 20});
    }
    EXPECT_EQ(FtpCaller(service_.ftp()).receive("RETR /ADVERTISMENT.JPG"), contentOf("ADVERTISMENT.JPG"));
    EXPECT_EQ(service_.stop(SIGTERM).Errors, "");
}

}  // namespace
}  // namespace vell::test
