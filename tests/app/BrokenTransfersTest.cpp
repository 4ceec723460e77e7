// SPDX-License-Identifier: MIT
#include <string>

#include <gmock/gmock.h>

#include "store/PartName.h"
#include "tests/app/EitherProtocolRig.h"

namespace vell::test {

using testing::HasSubstr, testing::Le, testing::Not, testing::SizeIs;

class BrokenTransfersTest : public testing::Test, protected EitherProtocolRig {
  protected:
    // A run in which N120040307.PDF, over an old file of that content or over none (""), does not come as the list
    // says.
    void expectFailure(const std::string& old, const std::string& kept, const std::string& told,
                       std::size_t mostParts = 0) {
        SCOPED_TRACE(told + " over '" + old + "'");
        std::filesystem::remove_all(folder.path() / "clips/07032004");
        std::filesystem::remove(folder.path() / "vell.log");
        if (!old.empty()) folder.put("clips/07032004/" + pdf, old);
        EXPECT_FALSE(runToday());
        EXPECT_EQ(inDay(pdf), kept);
        EXPECT_THAT(logged(), Not(HasSubstr("Printing " + pdf)));
        EXPECT_THAT(logged(), HasSubstr(told));
        EXPECT_EQ(program.downloads().outcome().FilesFailed, 1);
        EXPECT_THAT(Split(inDay("ALLFILES.DIR"), "||d||"), SizeIs(2));
        EXPECT_THAT(files.Enumerate(folder.text() + "/clips/07032004", ".*", Files::Kind::Files),
                    SizeIs(Le(mostParts)));
    }

    const std::string pdf = "N120040307.PDF", whole = std::string(1500, '1'),
                      page = " <!doctype HTML>" + std::string(1484, 'x'), cameWith = pdf + " came with ",
                      listed = " bytes, the list says 1500.", pageCame = "A web page came in place of " + pdf + ".";
};

TEST_F(BrokenTransfersTest, overHttpTakeNoOnesPlaceAndAreKeptOnlyWhereThereIsNone) {
    ASSERT_TRUE(serveOver("HTTP", 2));
    folder.put("vell.ini", folder.get("vell.ini") + "PrintOnDownload=1\r\n");
    HttpPeer::Answer& answer = service.Answers[ServicePeer::pathOf(pdf)];
    answer = HttpPeer::ok("short");
    expectFailure("old", "old", cameWith + "5" + listed);
    expectFailure("", "short", cameWith + "5" + listed);
    answer = HttpPeer::ok(whole + "more");
    expectFailure("old", "old", cameWith + "1504" + listed);
    answer = HttpPeer::ok(page);
    expectFailure("old", "old", pageCame);
    expectFailure("", "", pageCame);
    answer = {"HTTP/1.0 200 OK\r\nContent-Length: 1500\r\n\r\nhalf"};
    expectFailure("", "", "The file was cut short.");
}

TEST_F(BrokenTransfersTest, overFtpDoTheSameButWhatMayBeGoneOnWithStays) {
    if (!serveOver("FTP", 2)) GTEST_SKIP() << "no FTP server is installed";
    const std::string remote = "torvoarchive/" + pdf;
    root.put(remote, "short");
    expectFailure("old", "old", cameWith + "5" + listed, 1);
    expectFailure("", "short", cameWith + "5" + listed);
    root.put(remote, whole + "more");
    expectFailure("old", "old", cameWith + "1504" + listed);
    root.put(remote, page);
    expectFailure("", "", pageCame);
    std::filesystem::remove(root.path() / remote);
    expectFailure("old", "old", "FTP-->550 ");
    root.put(remote, whole);
    root.put("badness", "breaks");
    expectFailure("old", "old", "FTP-->426 ", 1);
    expectFailure("", "", "FTP-->426 ", 1);
    root.put("badness", "dies");
    expectFailure("old", "old", "Retrying 1/1 " + pdf + " (Starting from 3 bytes)\nFTP-->Resolving host...", 1);
    root.put("badness", "forgets");
    folder.put("clips/07032004/" + partName(pdf, "1"), whole.substr(0, 1000));
    EXPECT_TRUE(runToday()) << "the part was dropped, and the next attempt fetched the whole file";
    EXPECT_EQ(inDay(pdf), whole);
    EXPECT_THAT(logged(), HasSubstr(cameWith + "2500" + listed));
}

}  // namespace vell::test
