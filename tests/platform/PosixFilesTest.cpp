// SPDX-License-Identifier: MIT
#include <csignal>
#include <filesystem>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "platform/posix/files/PosixFiles.h"
#include "tests/support/FolderRig.h"

namespace vell::test {
namespace {

using testing::IsEmpty;

class PosixFilesTest : public testing::Test, protected FolderRig {
  protected:
    // No file of this process may grow further, as on a full disk.
    static void limitFiles(rlim_t bytes) {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, RLIM_INFINITY};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
};

TEST_F(PosixFilesTest, aNameThatDiffersInCaseIsFoundInEveryPartOfThePath) {
    folder_.put("Clips/07032004/Άρθρο.PDF", "abc");
    const std::string article = at("CLIPS\\07032004\\\xDC\xD1\xC8\xF1\xEF.pdf");  // "άΡΘρο.pdf" in code page 1253
    EXPECT_EQ(files_.ReadFile(article), "abc");
    files_.WriteWhole(article, "new", Durability::Rename);
    files_.Append(article, "er");
    EXPECT_EQ(folder_.get("Clips/07032004/Άρθρο.PDF"), "newer");
    files_.DeleteFile(article);
    EXPECT_FALSE(files_.PathExists(article));
    EXPECT_TRUE(files_.PathExists(at("clips\\")));
    EXPECT_FALSE(files_.PathExists(at("clips\\gone\\x")));
}

TEST_F(PosixFilesTest, ofTwoNamesThatDifferInCaseTheExactOneIsMeant) {
    folder_.put("a.pdf", "small");
    folder_.put("A.PDF", "capital");
    EXPECT_EQ(files_.ReadFile(at("a.pdf")), "small");
    EXPECT_EQ(files_.ReadFile(at("A.PDF")), "capital");
    EXPECT_EQ(files_.ReadFile(at("A.pdf")), "capital");
    files_.DeleteFile(at("A.PDF"));
    EXPECT_EQ(files_.ReadFile(at("A.pdf")), "small");
}

TEST_F(PosixFilesTest, aWholeFileThatCouldNotBeWrittenLeavesTheOldOneAndNothingElse) {
    folder_.put("ALLFILES.DIR", "old");
    limitFiles(1000);
    const auto error = errorOf([&] { files_.WriteWhole(at("allfiles.dir"), std::string(2000, 'x'), {}); });
    limitFiles(RLIM_INFINITY);
    EXPECT_EQ(error.Number, error_number::DiskFull);
    EXPECT_EQ(folder_.get("ALLFILES.DIR"), "old");
    EXPECT_EQ(entriesOnDisk(), 1u);
}

TEST_F(PosixFilesTest, whatIsNoFileDoesNotGiveWayToAPartButALinkDoes) {
    folder_.put("real", "theirs");
    folder_.put("folder/x", "");
    std::filesystem::create_symlink("real", folder_.path() / "LINK.PDF");
    std::filesystem::create_symlink("real", folder_.path() / ".l.part");
    ASSERT_EQ(mkfifo((folder_.path() / ".f.part").c_str(), 0600), 0);
    const auto part = files_.OpenPart(at(".a.part"));
    part->Write("ours");
    EXPECT_EQ(errorOf([&] { part->MoveTo(at("folder")); }).Number, error_number::PathAccess);
    part->MoveTo(at("LINK.PDF"));
    std::filesystem::create_hard_link(folder_.path() / "real", folder_.path() / ".h.part");
    std::filesystem::create_hard_link(folder_.path() / "real", folder_.path() / "B.PDF");
    const auto other = files_.OpenPart(at(".h.part"));
    other->Write("new");
    EXPECT_NE(errorOf([&] { other->Adopt(at("B.PDF")); }).Number, 0);
    EXPECT_EQ(folder_.get("LINK.PDF"), "ours");
    EXPECT_EQ(folder_.get("real"), "theirs");
    for (const char* name : {".l.part", ".f.part"})
        EXPECT_NE(errorOf([&] { (void)files_.OpenPart(at(name)); }).Number, 0) << name;
}

TEST_F(PosixFilesTest, onlyWhatDoesNotExistIsTakenForAbsentAndAPipeForNoFile) {
    std::filesystem::create_symlink("loop", folder_.path() / "loop");
    ASSERT_EQ(mkfifo((folder_.path() / "pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("gone", folder_.path() / "dangling.pdf");
    EXPECT_THAT(names("*.pdf"), IsEmpty());
    EXPECT_FALSE(files_.PathExists(at("gone\\x")));
    EXPECT_EQ(files_.Stamp(at("gone")), std::nullopt);
    EXPECT_TRUE(files_.PathExists(at("loop")));
    EXPECT_EQ(errorOf([&] { (void)files_.FileSize(at("loop")); }).LastSystemError, ELOOP);
    EXPECT_EQ(errorOf([&] { (void)files_.Stamp(at(std::string(300, 'a'))); }).Number, error_number::BadFileName);
    const int reader = open((folder_.path() / "pipe").c_str(), O_RDONLY | O_NONBLOCK);
    EXPECT_EQ(errorOf([&] { files_.Append(at("pipe"), "x"); }).Number, error_number::PathAccess);
    close(reader);
}

TEST_F(PosixFilesTest, aWriteToAFullDiskCanBeMadeAgain) {
    EXPECT_EQ(errorOf([&] { files_.Append("\\dev\\full", "x"); }).Number, error_number::DiskFull);
    const auto part = files_.OpenPart(at(".a.part"));
    part->Write(std::string(600, 'a'));
    limitFiles(1000);
    const auto error = errorOf([&] { part->Write(std::string(600, 'b')); });
    limitFiles(RLIM_INFINITY);
    EXPECT_EQ(error.Number, error_number::DiskFull);
    EXPECT_EQ(part->Length(), 600);
    part->Write(std::string(600, 'b'));
    part->MoveTo(at("A.PDF"));
    EXPECT_EQ(folder_.get("A.PDF"), std::string(600, 'a') + std::string(600, 'b'));
}

TEST_F(PosixFilesTest, replacingAFileKeepsItsPermissionsAndTheLinkToIt) {
    folder_.put("real", "old");
    std::filesystem::permissions(folder_.path() / "real", std::filesystem::perms{0640});
    std::filesystem::create_symlink("real", folder_.path() / "link");
    files_.WriteWhole(at("link"), "new", Durability::Rename);
    EXPECT_TRUE(std::filesystem::is_symlink(folder_.path() / "link"));
    EXPECT_EQ(folder_.get("real"), "new");
    EXPECT_EQ(std::filesystem::status(folder_.path() / "real").permissions(), std::filesystem::perms{0640});
    const auto part = files_.OpenPart(at(".real.part"));
    part->MoveTo(at("real"));
    EXPECT_EQ(std::filesystem::status(folder_.path() / "real").permissions(), std::filesystem::perms{0640});
    files_.WriteWhole(at("link"), "new", Durability::Rename);
    files_.MakePrivateFile(at("private"));
    files_.MakePrivateFile(at("REAL"));
    EXPECT_EQ(std::filesystem::status(folder_.path() / "private").permissions(), std::filesystem::perms{0600});
    EXPECT_EQ(folder_.get("real"), "new");
    EXPECT_EQ(entriesOnDisk(), 3u);
}

}  // namespace
}  // namespace vell::test
