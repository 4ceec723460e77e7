// SPDX-License-Identifier: MIT
#include <algorithm>

#include <asio/read.hpp>
#include <asio/write.hpp>
#include <gmock/gmock.h>

#include "base/text.h"
#include "tests/demo/DemoProcess.h"
#include "tests/demo/FtpCaller.h"
#include "tests/demo/HttpCaller.h"
#include "tests/demo/SmallTree.h"

namespace vell::test {
namespace {

using asio::ip::tcp;
using testing::ContainsRegex;
using Way = FtpCaller::Way;

class DemoFtpTest : public testing::Test {
  protected:
    SmallTree tree_;
    DemoProcess service_{tree_.path()};
};

// A command and the code that it must get.
struct Exchange {
    std::string Command;
    int Code;
};

void expectCodes(FtpCaller& caller, const std::vector<Exchange>& exchanges) {
    for (const auto& exchange : exchanges)
        EXPECT_EQ(caller.tell(exchange.Command), exchange.Code) << exchange.Command;
}

TEST_F(DemoFtpTest, letsInTheClientsOfTheServiceAndThePeopleOfTheTable) {
    const struct {
        const char *User, *Password;
        int Code;
    } cases[] = {
        {"vell", "ruxo", 230}, {"demo", "demo", 230},     {"vell", "Ruxo", 530},       {"VELL", "ruxo", 530},
        {"demo", "ruxo", 530}, {"user", "password", 530}, {"anonymous", "a@b.c", 530}, {"", "", 530},
    };
    for (const auto& c : cases)
        EXPECT_EQ(FtpCaller(service_.ftp(), c.User, c.Password).lastCode(), c.Code) << c.User;
    FtpCaller stranger(service_.ftp(), "vell", "wrong");
    expectCodes(stranger, {{"PWD", 530},
                           {"RETR ADVERTISMENT.JPG", 530},
                           {"PASV", 530},
                           {"ABOR", 530},
                           {"NOOP", 200},
                           {"SYST", 215},
                           {"PASS ruxo", 230},
                           {"PWD", 257},
                           {"USER vell", 331},
                           {"PWD", 530},
                           {"QUIT", 221}});
    EXPECT_EQ(stranger.reply(), "");
}

TEST_F(DemoFtpTest, answersEveryCommandWithItsCode) {
    FtpCaller caller(service_.ftp());
    expectCodes(caller, {{"TYPE I", 200},    {"type a", 200},       {"TYPE A N", 200},
                         {"TYPE E", 504},    {"TYPE", 504},         {"MODE S", 200},
                         {"MODE B", 504},    {"STRU F", 200},       {"STRU R", 504},
                         {"ALLO 10", 202},   {"REST 10", 350},      {"REST -1", 501},
                         {"REST x", 501},    {"REST", 501},         {"FEAT", 211},
                         {"STAT", 211},      {"SITE CHMOD 1", 504}, {"ABOR", 226},
                         {"EPSV", 502},      {"MLSD", 502},         {"HELO x", 500},
                         {"", 500},          {"CWD a\tb", 501},     {"PORT 1,2,3", 501},
                         {"RNTO x", 503},    {"LIST", 425},         {"RETR /ADVERTISMENT.JPG", 425},
                         {"RETR none", 550}, {"NOOP", 200}});
    EXPECT_EQ(caller.ask("SYST"), "215 UNIX Type: L8");
    EXPECT_EQ(caller.ask("FEAT"), "211-Extensions:\n SIZE\n REST STREAM\n211 End.");
}

TEST_F(DemoFtpTest, walksTheTreeAndNeverLeavesIt) {
    FtpCaller caller(service_.ftp());
    const struct {
        const char* Command;
        const char* Directory;
    } cases[] = {
        {"PWD", "/"},
        {"CWD torvoarchive", "/torvoarchive"},
        {"CDUP", "/"},
        {"CDUP", "/"},
        {"CWD 07032004", "/07032004"},
        {"CWD ../09032004/.", "/09032004"},
        {"CWD /upload/", "/upload"},
        {"CWD ../../../../etc", nullptr},
        {"CWD 08032004", nullptr},
        {"CWD ADVERTISMENT.JPG", nullptr},
        {"CWD a\\b", nullptr},
        {"CWD a:b", nullptr},
        {"CWD", "/upload"},
    };
    for (const auto& c : cases) {
        const std::string reply = caller.ask(c.Command);
        if (c.Directory)
            EXPECT_EQ(reply.substr(4, reply.rfind('"') - 3), '"' + std::string(c.Directory) + '"') << reply;
        else
            EXPECT_TRUE(reply.starts_with("550 ")) << c.Command << " -> " << reply;
    }
}

TEST_F(DemoFtpTest, sendsFilesOverBothKindsOfConnectionsAndFromAnyByteOn) {
    tree_.put("07032004/EMPTY.TXT", "");
    FtpCaller caller(service_.ftp());
    EXPECT_EQ(caller.tell("CWD torvoarchive"), 250);
    const std::string name = "NEA02_20040307.PDF", content = contentOf(name);
    for (Way way : {Way::Passive, Way::Active}) {
        EXPECT_EQ(caller.receive("RETR " + name, way), content);
        EXPECT_EQ(caller.receive("RETR nea02_20040307.pdf", way), content);
        EXPECT_EQ(caller.receive("RETR EMPTY.TXT", way), "");
        EXPECT_EQ(caller.lastCode(), 226);
        for (std::size_t offset : {std::size_t{1}, std::size_t{1000}, content.size()}) {
            EXPECT_EQ(caller.tell("REST " + std::to_string(offset)), 350);
            EXPECT_EQ(caller.receive("RETR " + name, way), content.substr(offset)) << offset;
            EXPECT_EQ(caller.lastCode(), 226);
        }
        EXPECT_EQ(caller.receive("RETR " + name, way), content) << "an offset is good for one transfer";
        caller.tell("REST " + std::to_string(content.size() + 1));
        EXPECT_EQ(caller.receive("RETR " + name, way), "");
        EXPECT_EQ(caller.lastCode(), 550);
    }
    EXPECT_EQ(caller.ask("SIZE " + name), "213 " + std::to_string(content.size()));
}

TEST_F(DemoFtpTest, showsTheFilesOfAllDaysInOneFolderButNeverItsOwn) {
    tree_.put("07032004/X.PDF", "an older one of the same name");
    FtpCaller caller(service_.ftp());
    EXPECT_EQ(caller.receive("NLST torvoarchive"),
              "ADVERTISMENT.JPG\r\nNEA01_20040307.MT\r\nNEA01_20040307.PDF\r\nNEA01_20040307.TXT\r\n"
              "NEA01_20040309.MT\r\nNEA01_20040309.PDF\r\nNEA01_20040309.TXT\r\nNEA02_20040307.MT\r\n"
              "NEA02_20040307.PDF\r\nNEA02_20040307.TXT\r\nX.MT\r\nX.PDF\r\nX.TXT\r\n");
    EXPECT_EQ(caller.receive("RETR torvoarchive/X.PDF"), contentOf("X.PDF"));
    EXPECT_EQ(caller.receive("RETR torvoarchive/Advertisment.jpg"), contentOf("ADVERTISMENT.JPG"));
    EXPECT_EQ(caller.receive("NLST"), "07032004\r\n09032004\r\nADVERTISMENT.JPG\r\ntorvoarchive\r\nupload\r\n");
    for (const char* name : {"/users.tsv", "/07032004/clippings.tsv", "/07032004/ALERT.TXT", "/torvoarchive/alert.txt",
                             "/torvoarchive/clippings.tsv", "/torvoarchive/07032004/X.PDF", "/upload", "/07032004"}) {
        EXPECT_EQ(caller.receive(std::string("RETR ") + name), "");
        EXPECT_EQ(caller.lastCode(), 550) << name;
        EXPECT_EQ(caller.tell(std::string("SIZE ") + name), 550) << name;
    }
}

TEST_F(DemoFtpTest, listsInUnixFormOrInDosForm) {
    const auto old = std::filesystem::file_time_type::clock::now() - std::chrono::hours{24 * 400};
    std::filesystem::last_write_time(tree_.path() / "07032004/NEA01_20040307.MT", old);
    FtpCaller caller(service_.ftp());
    const std::string size = std::to_string(contentOf("NEA01_20040307.PDF").size());
    const std::string two = "[0-9][0-9]", day = "[A-Z][a-z][a-z] [ 123][0-9] ";
    const std::string unixFiles = caller.receive("LIST 07032004");
    EXPECT_THAT(unixFiles,
                ContainsRegex("-rw-r--r-- +1 ftp +ftp +[0-9]+ " + day + " 20" + two + " NEA01_20040307.MT\r"));
    EXPECT_THAT(unixFiles,
                ContainsRegex("1 ftp +ftp +" + size + " " + day + two + ":" + two + " NEA01_20040307.PDF\r"));
    EXPECT_THAT(caller.receive("LIST -la"),
                ContainsRegex("drwxr-xr-x +2 ftp +ftp +0 " + day + two + ":" + two + " 07032004\r"));
    EXPECT_EQ(caller.tell("SITE DIRSTYLE"), 200);
    const std::string dosTime = two + "-" + two + "-" + two + "  " + two + ":" + two + "[AP]M +";
    EXPECT_THAT(caller.receive("LIST 07032004"), ContainsRegex(dosTime + size + " NEA01_20040307.PDF\r"));
    EXPECT_THAT(caller.receive("LIST"), ContainsRegex(dosTime + "<DIR> +07032004\r"));
    EXPECT_EQ(caller.ask("SYST"), "215 Windows_NT");
    const DemoProcess dos(tree_.path(), {"--list-form", "DOS"});
    EXPECT_THAT(FtpCaller(dos.ftp()).receive("LIST"), ContainsRegex(dosTime + "<DIR> +07032004\r"));
}

TEST_F(DemoFtpTest, listsWhatAPatternOrANameAsksFor) {
    FtpCaller caller(service_.ftp());
    const struct {
        const char* Argument;
        const char* Names;
    } cases[] = {
        {"torvoarchive/*0309.p?f", "NEA01_20040309.PDF\r\n"},
        {"torvoarchive/x.*", "X.MT\r\nX.PDF\r\nX.TXT\r\n"},
        {"*2004", "07032004\r\n09032004\r\n"},
        {"-a 07032004/*02*.MT", "NEA02_20040307.MT\r\n"},
        {"/torvoarchive/X.MT", "X.MT\r\n"},
        {"*.none", ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(caller.receive(std::string("NLST ") + c.Argument), c.Names) << c.Argument;
        EXPECT_EQ(caller.lastCode(), 226) << c.Argument;
    }
    for (const char* argument : {"none", "07032004/none", "../x/*", "a\\b/*"}) {
        EXPECT_EQ(caller.receive(std::string("LIST ") + argument), "");
        EXPECT_EQ(caller.lastCode(), 550) << argument;
    }
}

TEST_F(DemoFtpTest, takesFilesAndChangesInTheDaysAndInUpload) {
    FtpCaller caller(service_.ftp());
    const std::string bytes = contentOf("some upload");
    EXPECT_EQ(caller.store("STOR upload/a.bin", bytes), 226);
    EXPECT_EQ(tree_.get("upload/a.bin"), bytes);
    EXPECT_EQ(caller.store("APPE upload/a.bin", "++"), 226);
    EXPECT_EQ(tree_.get("upload/a.bin"), bytes + "++");
    caller.tell("REST 5");
    EXPECT_EQ(caller.store("STOR upload/a.bin", "12345"), 226);
    EXPECT_EQ(tree_.get("upload/a.bin"), bytes.substr(0, 5) + "12345" + bytes.substr(10) + "++");
    EXPECT_EQ(caller.store("STOR upload/a.bin", ""), 226);
    EXPECT_EQ(tree_.get("upload/a.bin"), "");
    EXPECT_EQ(caller.store("STOR 07032004/NEW.PDF", bytes), 226);
    EXPECT_EQ(tree_.get("07032004/NEW.PDF"), bytes);
    expectCodes(caller, {{"MKD upload/sub", 257},
                         {"MKD upload/sub", 550},
                         {"RNFR upload/a.bin", 350},
                         {"RNTO upload/sub/b.bin", 250},
                         {"RNTO upload/sub/c.bin", 503},
                         {"RMD upload/sub", 550},
                         {"DELE upload/sub", 550},
                         {"RMD upload/sub/b.bin", 550},
                         {"DELE upload/sub/b.bin", 250},
                         {"DELE upload/sub/b.bin", 550},
                         {"RNFR upload/none", 550},
                         {"RMD upload/sub", 250},
                         {"DELE 07032004/NEW.PDF", 250}});
    EXPECT_EQ(caller.ask("MKD /upload/x"), "257 \"/upload/x\" was made.");
    EXPECT_FALSE(tree_.has("07032004/NEW.PDF"));
    EXPECT_FALSE(tree_.has("upload/sub"));
}

TEST_F(DemoFtpTest, writesNowhereElse) {
    const TempFolder outside;
    outside.put("kept.txt", "kept");
    std::filesystem::create_directories(tree_.path() / "upload");
    std::filesystem::create_directory_symlink(outside.path(), tree_.path() / "upload/link");
    FtpCaller caller(service_.ftp());
    for (const char* name :
         {"/users.tsv", "/new.txt", "/07032004/clippings.tsv", "/07032004/Alert.txt", "/torvoarchive/X.PDF",
          "../../new.txt", "upload/../new.txt", "/upload", "/07032004", "/ADVERTISMENT.JPG", "/upload/.hidden",
          "/upload/a b", "/upload/a\\b", "/upload/link/new.txt", "/upload/link/kept.txt", "/other/new.txt", "/"}) {
        const std::string argument = name;
        EXPECT_EQ(caller.store("STOR " + argument, "overwritten"), 553) << name;
        EXPECT_EQ(caller.store("APPE " + argument, "overwritten"), 553) << name;
        expectCodes(
            caller,
            {{"DELE " + argument, 550}, {"RMD " + argument, 550}, {"MKD " + argument, 550}, {"RNFR " + argument, 550}});
        expectCodes(caller, {{"RNFR /07032004/NEA01_20040307.PDF", 350}, {"RNTO " + argument, 550}});
    }
    EXPECT_EQ(caller.store("STOR /upload/none/a", "x"), 550);
    EXPECT_EQ(caller.receive("RETR /upload/link/kept.txt"), "");
    EXPECT_EQ(outside.get("kept.txt"), "kept");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(outside.path()), {}), 1);
    EXPECT_EQ(tree_.get("07032004/NEA01_20040307.PDF"), contentOf("NEA01_20040307.PDF"));
    EXPECT_EQ(tree_.get("users.tsv").substr(0, 4), "user");
    EXPECT_EQ(tree_.get("ADVERTISMENT.JPG"), contentOf("ADVERTISMENT.JPG"));
}

TEST_F(DemoFtpTest, connectsToNobodyButItsOwnPeer) {
    FtpCaller caller(service_.ftp());
    for (const char* argument : {"10,0,0,5,19,137", "127,0,0,2,19,137", "127,0,0,1,0,25", "127,0,0,1,256,1",
                                 "127,0,0,1,19", "127,0,0,1,19,137,1", "a,b,c,d,e,f", ""})
        EXPECT_EQ(caller.tell(std::string("PORT ") + argument), 501) << argument;
    EXPECT_EQ(caller.tell("LIST"), 425);
    asio::io_context loop;
    tcp::acceptor closed(loop, tcp::endpoint(asio::ip::address_v4::loopback(), 0));
    const int port = closed.local_endpoint().port();
    closed.close();
    EXPECT_EQ(caller.tell("PORT 127,0,0,1," + std::to_string(port / 256) + "," + std::to_string(port % 256)), 200);
    EXPECT_EQ(caller.tell("LIST"), 150);
    EXPECT_EQ(caller.code(), 425);
    EXPECT_NE(caller.receive("LIST"), "");
}

TEST_F(DemoFtpTest, hangsUpOnAStrangerAtItsDataPort) {
    FtpCaller caller(service_.ftp());
    const std::string place = caller.passive();
    asio::io_context loop;
    tcp::socket stranger(loop, tcp::endpoint(asio::ip::make_address("127.0.0.2"), 0));
    stranger.connect({asio::ip::make_address("127.0.0.1"), static_cast<std::uint16_t>(std::stoi(place.substr(10)))});
    EXPECT_EQ(caller.tell("RETR ADVERTISMENT.JPG"), 150);
    char byte = 0;
    asio::error_code problem;
    asio::read(stranger, asio::buffer(&byte, 1), problem);
    EXPECT_EQ(problem, asio::error::eof);
    auto data = streamTo(place);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(data), {}), contentOf("ADVERTISMENT.JPG"));
    EXPECT_EQ(caller.code(), 226);
}

TEST_F(DemoFtpTest, takesCommandsInPiecesTogetherOverlongAndWithTelnetCodes) {
    FtpCaller caller(service_.ftp());
    for (char c : std::string("CWD 07032004\r\n"))
        caller.send({&c, 1});
    EXPECT_EQ(caller.code(), 250);
    caller.send("PWD\nnoop\r\nCDUP\r\nPW");
    EXPECT_EQ(caller.code(), 257);
    EXPECT_EQ(caller.code(), 200);
    EXPECT_EQ(caller.code(), 250);
    caller.send("D\r\n");
    EXPECT_EQ(caller.reply(), "257 \"/\" is the current directory.");
    caller.send("RETR " + std::string(1 << 20, 'x') + "\r\nNOOP\r\n");
    EXPECT_EQ(caller.code(), 500);
    EXPECT_EQ(caller.code(), 200);
    caller.send("\xFF\xFB\x01NO\xFF\xF1OP\r\n");  // Telnet: an option offered, and a "no operation" in mid-word
    EXPECT_EQ(caller.code(), 200);
}

// A file that takes a minute, so that something can happen in the middle.
class DemoLongTransferTest : public testing::Test {
  protected:
    DemoLongTransferTest() {
        tree_.put("07032004/LONG.PDF", std::string(6 << 20, 'x'));
        caller_.tell("CWD 07032004");
    }

    // Begins the download and takes its first bytes.
    tcp::iostream begin() {
        auto data = streamTo(caller_.passive());
        EXPECT_EQ(caller_.tell("RETR LONG.PDF"), 150);
        EXPECT_EQ(data.get(), 'x');
        return data;
    }

    SmallTree tree_;
    DemoProcess service_{tree_.path(), {"--rate", "100"}};
    FtpCaller caller_{service_.ftp()};
};

TEST_F(DemoLongTransferTest, isEndedByAborAndTheSessionGoesOn) {
    for (const char* abort : {"ABOR\r\n",
                              "\xFF\xF4\xFF\xF2"
                              "ABOR\r\n"}) {
        auto data = begin();
        caller_.send(abort);
        EXPECT_EQ(caller_.code(), 426);
        EXPECT_EQ(caller_.code(), 226);
        EXPECT_LT(std::string(std::istreambuf_iterator<char>(data), {}).size(), std::size_t{1 << 20});
    }
    EXPECT_NE(caller_.passive(), "");
    EXPECT_EQ(caller_.tell("LIST"), 150);  // nobody comes to the data connection
    EXPECT_EQ(caller_.tell("ABOR"), 426);
    EXPECT_EQ(caller_.code(), 226);
    EXPECT_EQ(caller_.receive("RETR NEA01_20040307.MT"), contentOf("NEA01_20040307.MT"));
}

TEST_F(DemoLongTransferTest, letsQuestionsInAndKeepsCommandsForLater) {
    auto data = begin();
    EXPECT_EQ(caller_.tell("NOOP"), 200);
    EXPECT_NE(caller_.ask("STAT").find("A transfer is under way."), std::string::npos);
    caller_.send("PWD\r\n");
    data.close();
    EXPECT_EQ(caller_.code(), 426) << "the transfer that lost its connection is told first";
    EXPECT_EQ(caller_.reply(), "257 \"/07032004\" is the current directory.");
    EXPECT_EQ(caller_.ask("STAT").find("A transfer is under way."), std::string::npos);
}

TEST_F(DemoLongTransferTest, endsWithItsSession) {
    auto data = begin();
    caller_.hangUp();
    EXPECT_LT(std::string(std::istreambuf_iterator<char>(data), {}).size(), std::size_t{1 << 20});
    EXPECT_EQ(FtpCaller(service_.ftp()).receive("RETR /ADVERTISMENT.JPG"), contentOf("ADVERTISMENT.JPG"));
    EXPECT_EQ(service_.stop(15).Errors, "");
}

TEST_F(DemoLongTransferTest, keepsWhatAnAbortedUploadHasBrought) {
    asio::io_context loop;
    const std::string place = caller_.passive();
    tcp::socket data(loop);
    data.connect({asio::ip::address_v4::loopback(), static_cast<std::uint16_t>(std::stoi(place.substr(10)))});
    EXPECT_EQ(caller_.tell("STOR /upload/part.bin"), 150);
    asio::write(data, asio::buffer(std::string("begun")));
    while (!tree_.has("upload/part.bin") || tree_.get("upload/part.bin") != "begun")
        EXPECT_EQ(caller_.tell("NOOP"), 200);
    EXPECT_EQ(caller_.tell("ABOR"), 426);
    EXPECT_EQ(caller_.code(), 226);
    EXPECT_EQ(tree_.get("upload/part.bin"), "begun");
}

}  // namespace
}  // namespace vell::test
