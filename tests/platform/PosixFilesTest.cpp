// SPDX-License-Identifier: MIT
#include <csignal>
#include <filesystem>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "platform/posix/files/PosixFiles.h"
#include "tests/support/TempFolder.h"

namespace vell::test {
namespace {

using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;

class PosixFilesTest : public testing::Test {
  protected:
    [[nodiscard]] std::string at(std::string_view name) const { return folder_.text() + "\\" + std::string(name); }
    [[nodiscard]] std::size_t entriesOnDisk() const {
        using std::filesystem::directory_iterator;
        return static_cast<std::size_t>(std::distance(directory_iterator(folder_.path()), directory_iterator()));
    }
    [[nodiscard]] std::vector<std::string> names(std::string_view pattern, Files::Kind kind = Files::Kind::Files) {
        std::vector<std::string> found;
        for (const auto& entry : files_.Enumerate(folder_.text(), pattern, kind))
            found.push_back(entry.Name);
        return found;
    }
    // No file of this process may grow further, as on a full disk.
    static void limitFiles(rlim_t bytes) {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, RLIM_INFINITY};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    template <class Body>
    static RunTimeError errorOf(Body&& body) {
        try {
            body();
        } catch (const RunTimeError& error) {
            return error;
        }
        ADD_FAILURE() << "no error was raised";
        return {0, ""};
    }

    TempFolder folder_;
    PosixFiles files_;
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

TEST_F(PosixFilesTest, whatOthersMakeAndRemoveIsSeenAtOnce) {
    for (int round = 0; round < 50; ++round) {
        const auto upper = "A" + std::to_string(round) + ".PDF", lower = "a" + std::to_string(round) + ".pdf";
        EXPECT_FALSE(files_.PathExists(at(lower)));
        folder_.put(upper, "x");
        EXPECT_TRUE(files_.PathExists(at(lower))) << round;
        std::filesystem::remove(folder_.path() / upper);
        EXPECT_FALSE(files_.PathExists(at(lower))) << round;
    }
    files_.WriteWhole(at("B.PDF"), "x", Durability::Rename);
    EXPECT_TRUE(files_.PathExists(at("b.pdf")));
    std::filesystem::remove(folder_.path() / "B.PDF");
    EXPECT_FALSE(files_.PathExists(at("b.pdf")));
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

TEST_F(PosixFilesTest, enumerationIsInNameOrderWithoutRegardToCase) {
    for (const char* name : {"b.PDF", "A.pdf", "c.txt", "noextension", "C.pdf", "日本.pdf", ".vell-1-1.part"})
        folder_.put(name, "12345");
    for (const char* name : {"07032004", "06032004"})
        std::filesystem::create_directory(folder_.path() / name);
    std::filesystem::create_symlink(folder_.path() / "gone", folder_.path() / "dangling.pdf");
    EXPECT_THAT(names("*.Pdf"), ElementsAre("A.pdf", "b.PDF", "C.pdf"));
    EXPECT_THAT(names("*.*"), ElementsAre("A.pdf", "b.PDF", "C.pdf", "c.txt", "noextension"));
    EXPECT_THAT(names("?.*T"), ElementsAre("c.txt"));
    EXPECT_THAT(names("*a*.*d*f*"), ElementsAre("A.pdf"));
    EXPECT_THAT(names("*", Files::Kind::Folders), ElementsAre("06032004", "07032004"));
    EXPECT_EQ(files_.Enumerate(folder_.text(), "A.PDF", Files::Kind::Files).at(0).Size, 5);
    EXPECT_THAT(files_.Enumerate(at("gone"), "*.*", Files::Kind::Files), IsEmpty());
}

TEST_F(PosixFilesTest, failuresCarryTheProgramsNumberAndThePathAsItWasGiven) {
    folder_.put("file", "x");
    folder_.put("full/file", "x");
    const std::pair<std::int32_t, std::function<void()>> cases[] = {
        {error_number::FileNotFound, [&] { (void)files_.ReadFile(at("gone.pdf")); }},
        {error_number::PathNotFound, [&] { (void)files_.ReadFile(at("gone\\a.pdf")); }},
        {error_number::PathNotFound, [&] { files_.WriteWhole(at("gone\\a.pdf"), "", Durability::Rename); }},
        {error_number::PathNotFound, [&] { files_.Append(at("file\\a.pdf"), "x"); }},
        {error_number::PathNotFound, [&] { files_.MakeFolder(at("gone\\07032004")); }},
        {error_number::PathNotFound, [&] { files_.RemoveFolder(at("gone")); }},
        {error_number::PathAccess, [&] { files_.MakeFolder(at("FULL")); }},
        {error_number::PathAccess, [&] { files_.RemoveFolder(at("full")); }},
        {error_number::PathAccess, [&] { (void)files_.ReadFile(at("full")); }},
        {error_number::PathAccess, [&] { files_.WriteWhole(at("full"), "", Durability::Rename); }},
        {error_number::BadFileName, [&] { files_.Append(at(std::string_view("a\0.pdf", 6)), "x"); }},
        {error_number::BadFileName, [&] { files_.MakeFolder(at("a\nb")); }},
        {error_number::BadFileName, [&] { (void)files_.ReadFile(at(std::string(300, 'a'))); }},
        {error_number::DiskFull, [&] { files_.Append("\\dev\\full", "x"); }},
    };
    int line = 0;
    for (const auto& [number, operation] : cases)
        EXPECT_EQ(errorOf(operation).Number, number) << "case " << line++;
    const auto error = errorOf([&] { files_.MakeFolder(at("gone\\07032004")); });
    EXPECT_THAT(error.Description, HasSubstr("Path not found: " + at("gone\\07032004")));
    EXPECT_EQ(errorOf([&] { (void)files_.ReadFile(at("gone")); }).LastSystemError, ENOENT);
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

TEST_F(PosixFilesTest, leftOverPartsGoAfterADayOrWithTheirFolderButNeverUnderTheirWriter) {
    const auto leave = [&](const std::string& name, int hours) {
        folder_.put(name, "half");
        const auto then = std::filesystem::file_time_type::clock::now() - std::chrono::hours{hours};
        std::filesystem::last_write_time(folder_.path() / name, then);
    };
    for (const char* day : {"day/", "other/"})
        for (const auto& [name, hours] : {std::pair{".A.PDF.1.part", 25}, {".B.PDF.1.part", 23}, {".C.PDF.1.part", 25}})
            leave(std::string(day) + name, hours);
    PosixFiles writer;
    const auto written = writer.OpenPart(at("day\\.C.PDF.1.part"));
    files_.WriteWhole(at("day\\a"), "x", Durability::Flushed);
    const auto parts = files_.Enumerate(at("day"), ".*", Files::Kind::Files);
    EXPECT_THAT(parts,
                ElementsAre(Field(&Files::Entry::Name, ".B.PDF.1.part"), Field(&Files::Entry::Name, ".C.PDF.1.part")));
    EXPECT_EQ(folder_.get("day/.C.PDF.1.part"), "half");
    files_.RemoveFolder(at("OTHER"));
    EXPECT_FALSE(folder_.has("other"));
}

TEST_F(PosixFilesTest, aPartIsOneWritersUntilItTakesItsPlace) {
    folder_.put("A.PDF", "old");
    std::filesystem::permissions(folder_.path() / "A.PDF", std::filesystem::perms{0640});
    PosixFiles another;
    auto part = files_.OpenPart(at(".a.part"));
    part->Write("0123456789");
    EXPECT_EQ(another.OpenPart(at(".a.part")), nullptr);
    part.reset();  // as a kill leaves it
    part = another.OpenPart(at(".A.part"));
    EXPECT_EQ(part->Length(), 10);
    part->StartAt(4);
    part->Write("new");
    EXPECT_EQ(part->Beginning(6), "0123ne");
    EXPECT_EQ(folder_.get("A.PDF"), "old");
    part->MoveTo(at("a.pdf"));
    EXPECT_EQ(folder_.get("A.PDF"), "0123new");
    EXPECT_EQ(std::filesystem::status(folder_.path() / "A.PDF").permissions(), std::filesystem::perms{0640});
    files_.OpenPart(at(".a.part"))->Write("x");
    files_.OpenPart(at(".a.part"))->Discard();
    files_.OpenPart(at(".b.part")).reset();  // nothing came
    files_.Flush(folder_.text());
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
    files_.MakePrivateFile(at("private"));
    files_.MakePrivateFile(at("REAL"));
    EXPECT_EQ(std::filesystem::status(folder_.path() / "private").permissions(), std::filesystem::perms{0600});
    EXPECT_EQ(folder_.get("real"), "new");
    EXPECT_EQ(entriesOnDisk(), 3u);
}

TEST_F(PosixFilesTest, freeBytesAreThoseOfTheNearestFolderThatExists) {
    const auto here = files_.FreeBytes(folder_.text());
    ASSERT_TRUE(here);
    EXPECT_GT(*here, 0u);
    EXPECT_TRUE(files_.FreeBytes(at("gone\\deeper\\a.pdf")));
    EXPECT_FALSE(files_.FreeBytes(""));
}

}  // namespace
}  // namespace vell::test
