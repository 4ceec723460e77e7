// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/text.h"
#include "tests/support/signedManifest.h"
#include "update/UpdateManifest.h"

namespace vell::test {
namespace {

using Kind = ManifestText::Kind;

TEST(UpdateManifestTest, readsWhatIsSaidAndTakesTheSignedBytesAsTheyAre) {
    const std::string text = signedManifest("archive", {{"later", "a key of times to come"}});
    const ManifestText read = readManifest(text);
    ASSERT_EQ(read.What, Kind::Manifest) << read.Fault;
    EXPECT_EQ(read.Manifest.Version, (ProgramVersion{2, 1, 38}));
    EXPECT_EQ(read.Manifest.Minimum, (ProgramVersion{2, 0, 0}));
    EXPECT_EQ(read.Manifest.Size, 7);
    EXPECT_EQ(read.Manifest.Sha256, sha256Of("archive"));
    EXPECT_EQ(read.Manifest.Notes, "Finds more.");
    EXPECT_EQ(read.Manifest.Text, text);
    EXPECT_EQ(text.substr(read.Manifest.Signed.size(), 10), "signature=");
    EXPECT_EQ(readManifest(Replace(text, "\n", "\r\n")).What, Kind::Manifest);
    EXPECT_EQ(readManifest(text.substr(0, text.size() - 1)).What, Kind::Manifest);
    for (const char* none : {"", " \r\n", "No update", "NO UPDATE\r\n"})
        EXPECT_EQ(readManifest(none).What, Kind::NoUpdate) << none;
}

TEST(UpdateManifestTest, isNoManifestWithALineMissingDoubledOrWrong) {
    const std::string name(98, 'x');
    const struct {
        const char* Key;
        std::string Value;
    } cases[] = {
        {"version", ""},
        {"version", "2.1"},
        {"version", "2.1.38.1"},
        {"version", "2.1.x"},
        {"version", "2.01.38"},
        {"version", "2.1.-3"},
        {"version", "2.1.9999999"},
        {"platform", ""},
        {"file", ""},
        {"file", "vell-/a"},
        {"file", "../vell-a"},
        {"file", "vell-..a"},
        {"file", "vell-a\\b"},
        {"file", ".vell-a"},
        {"file", "con"},
        {"file", "vell-a."},
        {"file", "vell-a b"},
        {"file", "vell-" + name},
        {"size", ""},
        {"size", "0"},
        {"size", "-7"},
        {"size", "7x"},
        {"size", "99999999999999999999"},
        {"size", "1073741825"},
        {"sha256", ""},
        {"sha256", std::string(63, 'a')},
        {"sha256", std::string(64, 'A')},
        {"date", ""},
        {"date", "31/02/2004"},
        {"minimum", "2"},
        {"nextkey", "x"},
        {"notes", "a\x01"},
        {"notes", std::string(2001, 'x')},
    };
    for (const auto& c : cases)
        EXPECT_EQ(readManifest(signedManifest("x", {{c.Key, c.Value}})).What, Kind::Unreadable) << c.Key << c.Value;
    const std::string good = signedManifest("x");
    for (const std::string& bad :
         {std::string("2.1.38"), std::string("<html>"), Replace(good, "format=1", "format=2"), good + "more=x\n",
          "x=y\n" + good, Replace(good, "size=1", "size=1\nsize=1"), Replace(good, "notes=", "notes"),
          Replace(good, "date=", "=date"), good.substr(0, good.find("signature=")) + "signature=\n",
          good.substr(0, good.size() - 3), good.substr(0, good.size() / 2), std::string(10U << 20, 'x'),
          Replace(good, "Finds", std::string(longestManifest, 'n'))})
        EXPECT_EQ(readManifest(bad).What, Kind::Unreadable) << bad.substr(0, 300);
}

TEST(UpdateManifestTest, fitsAnOlderProgramOfItsSystemThatIsNotTooOld) {
    const struct {
        const char *Running, *Platform;
        Fitness Is;
    } cases[] = {{"2.1.37", "linux-x86_64", Fitness::Newer},      {"2.0.0", "linux-x86_64", Fitness::Newer},
                 {"2.1.38", "linux-x86_64", Fitness::NotNewer},   {"2.1.100", "linux-x86_64", Fitness::NotNewer},
                 {"10.0.0", "linux-x86_64", Fitness::NotNewer},   {"1.9.99", "linux-x86_64", Fitness::StepsMissing},
                 {"2.1.37", "windows-x86_64", Fitness::ForOthers}};
    const auto manifest = readManifest(signedManifest("x")).Manifest;
    for (const auto& c : cases)
        EXPECT_EQ(fitnessOf(manifest, *ProgramVersion::fromText(c.Running), c.Platform), c.Is) << c.Running;
}

}  // namespace
}  // namespace vell::test
