// SPDX-License-Identifier: MIT
#include <filesystem>
#include <functional>

#include <gmock/gmock.h>

#include "platform/SystemTypes.h"
#include "tests/support/FolderRig.h"

namespace vell::test {
namespace {

using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;

class FilesTest : public testing::Test, protected FolderRig {};

TEST_F(FilesTest, whatOthersMakeAndRemoveIsSeenAtOnce) {
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

TEST_F(FilesTest, enumerationIsInNameOrderWithoutRegardToCase) {
    for (const char* name : {"b.PDF", "A.pdf", "c.txt", "noextension", "C.pdf", "日本.pdf", ".vell-1-1.part"})
        folder_.put(name, "12345");
    for (const char* name : {"07032004", "06032004"})
        std::filesystem::create_directory(folder_.path() / name);
    EXPECT_THAT(names("*.Pdf"), ElementsAre("A.pdf", "b.PDF", "C.pdf"));
    EXPECT_THAT(names("*.*"), ElementsAre("A.pdf", "b.PDF", "C.pdf", "c.txt", "noextension"));
    EXPECT_THAT(names("?.*T"), ElementsAre("c.txt"));
    EXPECT_THAT(names("*a*.*d*f*"), ElementsAre("A.pdf"));
    EXPECT_THAT(names("*", Files::Kind::Folders), ElementsAre("06032004", "07032004"));
    EXPECT_EQ(files_.Enumerate(folder_.text(), "A.PDF", Files::Kind::Files).at(0).Size, 5);
    EXPECT_THAT(files_.Enumerate(at("gone"), "*.*", Files::Kind::Files), IsEmpty());
}

TEST_F(FilesTest, failuresCarryTheProgramsNumberAndThePathAsItWasGiven) {
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
    };
    int line = 0;
    for (const auto& [number, operation] : cases)
        EXPECT_EQ(errorOf(operation).Number, number) << "case " << line++;
    const auto error = errorOf([&] { files_.MakeFolder(at("gone\\07032004")); });
    EXPECT_THAT(error.Description, HasSubstr("Path not found: " + at("gone\\07032004")));
    EXPECT_EQ(errorOf([&] { (void)files_.ReadFile(at("gone")); }).LastSystemError, 2)
        << "every system has this number for it";
}

TEST_F(FilesTest, leftOverPartsGoAfterADayOrWithTheirFolderButNeverUnderTheirWriter) {
    const auto leave = [&](const std::string& name, int hours) {
        folder_.put(name, "half");
        const auto then = std::filesystem::file_time_type::clock::now() - std::chrono::hours{hours};
        std::filesystem::last_write_time(folder_.path() / name, then);
    };
    for (const char* day : {"day/", "other/"})
        for (const auto& [name, hours] : {std::pair{".A.PDF.1.part", 25}, {".B.PDF.1.part", 23}, {".C.PDF.1.part", 25}})
            leave(std::string(day) + name, hours);
    SystemFiles writer;
    const auto written = writer.OpenPart(at("day\\.C.PDF.1.part"));
    files_.WriteWhole(at("day\\a"), "x", Durability::Flushed);
    const auto parts = files_.Enumerate(at("day"), ".*", Files::Kind::Files);
    EXPECT_THAT(parts,
                ElementsAre(Field(&Files::Entry::Name, ".B.PDF.1.part"), Field(&Files::Entry::Name, ".C.PDF.1.part")));
    EXPECT_EQ(files_.ReadFile(at("day\\.C.PDF.1.part")), "half");
    files_.RemoveFolder(at("OTHER"));
    EXPECT_FALSE(folder_.has("other"));
}

TEST_F(FilesTest, aPartIsOneWritersUntilItTakesItsPlace) {
    folder_.put("A.PDF", "old");
    SystemFiles another;
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
    files_.OpenPart(at(".a.part"))->Write("x");
    files_.OpenPart(at(".a.part"))->Discard();
    files_.OpenPart(at(".b.part")).reset();  // nothing came
    files_.Flush(folder_.text());
    EXPECT_EQ(entriesOnDisk(), 1u);
}

TEST_F(FilesTest, freeBytesAreThoseOfTheNearestFolderThatExists) {
    const auto here = files_.FreeBytes(folder_.text());
    ASSERT_TRUE(here);
    EXPECT_GT(*here, 0u);
    EXPECT_TRUE(files_.FreeBytes(at("gone\\deeper\\a.pdf")));
    EXPECT_FALSE(files_.FreeBytes(""));
}

}  // namespace
}  // namespace vell::test
