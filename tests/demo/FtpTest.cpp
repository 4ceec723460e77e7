// SPDX-License-Identifier: MIT
#include <csignal>

#include <gmock/gmock.h>

#include "tests/demo/DemoService.h"
#include "tests/demo/FtpCaller.h"

namespace vell::test {
namespace {

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
    expectCodes({{"USER vell", 331}, {"RETR ADVERTISMENT.JPG", 530}, {"PASS ruxo", 230}, {"QUIT", 221}});
    EXPECT_EQ(caller_.reply(), "");
}

TEST_F(DemoFtpTest, walksTheTreeAndNeverLeavesIt) {
    const std::pair<const char*, const char*> cases[] = {
        {"CDUP", "/"}, {"CWD 07032004", "/07032004"}, {"CWD ../09032004/.", "/09032004"}, {"CWD /upload/", "/upload"}};
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

TEST_F(DemoFtpTest, listsInUnixFormOrInDosFormWhatAPatternAsksFor) {
    const std::string size = std::to_string(contentOf("NEA01_20040307.PDF").size()), two = "[0-9][0-9]";
    const std::string dosTime = two + "-" + two + "-" + two + "  " + two + ":" + two + "[AP]M +";
    EXPECT_THAT(caller_.receive("LIST torvoarchive/*0307.p?f"),
                ContainsRegex("^-rw-r--r-- +1 ftp +ftp +" + size + " [A-Z][a-z][a-z] [ 123][0-9] " + two + ":" + two +
                              " NEA01_20040307.PDF\r\n[^\r]*NEA02_20040307.PDF\r\n$"));
    EXPECT_EQ(caller_.tell("SITE DIRSTYLE"), 200);
    EXPECT_THAT(caller_.receive("LIST 07032004"), ContainsRegex(dosTime + size + " NEA01_20040307.PDF\r"));
    const DemoService dos(tree_, {"--list-form", "DOS"});
    EXPECT_THAT(FtpCaller(dos.ftp()).receive("LIST"), ContainsRegex(dosTime + "<DIR> +07032004\r"));
}

TEST_F(DemoFtpTest, takesFilesAndChangesInTheDaysAndInUpload) {
    EXPECT_EQ(caller_.store("STOR upload/a.bin", "0123456789"), 226);
    EXPECT_EQ(caller_.store("APPE upload/a.bin", "++"), 226);
    caller_.tell("REST 5");
    EXPECT_EQ(caller_.store("STOR upload/a.bin", "---"), 226);
    EXPECT_EQ(tree_.get("upload/a.bin"), "01234---89++");
    EXPECT_EQ(caller_.store("STOR 07032004/NEW.PDF", ""), 226);
    expectCodes({{"MKD upload/sub", 257},
                 {"RNFR upload/a.bin", 350},
                 {"RNTO upload/sub/b.bin", 250},
                 {"RMD upload/sub", 550},
                 {"DELE upload/sub/b.bin", 250},
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

TEST_F(DemoFtpTest, aTransferEndsWithAborOrItsSessionAndOthersGoOn) {
    tree_.put("07032004/LONG.PDF", std::string(24 << 20, 'x'));
    const std::string telnet = "\xFF\xF4\xFF\xF2";
    for (const bool aborts : {true, false}) {
        auto data = caller_.passive();
        EXPECT_EQ(caller_.tell("RETR /07032004/LONG.PDF"), 150);
        EXPECT_EQ(data.get(), 'x');
        if (aborts) {
            caller_.send(telnet + "ABOR\r\n");
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
