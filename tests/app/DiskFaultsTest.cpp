// SPDX-License-Identifier: MIT
#include <string>
#include <tuple>
#include <vector>

#include <gmock/gmock.h>

#include "store/ClippingName.h"
#include "store/IndexLine.h"
#include "tests/app/EitherProtocolRig.h"

namespace vell::test {

using testing::AnyOf, testing::HasSubstr, testing::IsEmpty;

// Whole runs for a day whose clipping is there in an older version, with a disk that fails at every place.
class DiskFaultsTest : public testing::TestWithParam<std::tuple<const char*, FaultyFiles::Fault>>,
                       protected EitherProtocolRig {
  protected:
    static std::vector<std::string> names() { return {"N120040307.PDF", "N120040307.TXT", "N120040307.MT"}; }
    static std::string fresh(const std::string& name) {
        return std::string(name.ends_with("PDF") ? 1500 : 300, name[1]);
    }
    static std::string old(const std::string& name) { return "old " + name; }

    void begin() {
        files.failAt(0);
        std::filesystem::remove_all(folder.path() / "clips");
        std::filesystem::create_directory(folder.path() / "clips");
        std::filesystem::remove(folder.path() / "vell.log");
        folder.put("vell.ini", settings);
        folder.put("clips/07032004/ALLFILES.DIR", "N120040307.PDF||P||T||C||Y||0||d||18||18||17\r\n\r\n");
        for (const std::string& name : names())
            folder.put("clips/07032004/" + name, old(name));
    }
    // The marked clippings of the new list; each mark must be true.
    int marked() {
        int count = 0;
        const std::string index = inDay("ALLFILES.DIR");
        for (const std::string_view line : indexLines(index)) {
            if (!isMarked(line)) continue;
            const bool isFresh = indexChange(line) == "1";
            for (const std::string& name : clippingForms(std::string(indexKey(line))))
                EXPECT_EQ(inDay(name), isFresh ? fresh(name) : old(name)) << index;
            count += isFresh ? 1 : 0;
        }
        return count;
    }
};

TEST_P(DiskFaultsTest, loseAndMixNothingAreToldAndMadeGoodByTheNextRun) {
    if (!serveOver(std::get<0>(GetParam()), 1)) GTEST_SKIP() << "no FTP server is installed";
    int n = 0;
    do {
        SCOPED_TRACE("fault at " + std::to_string(++n));
        begin();
        files.failAt(n, std::get<1>(GetParam()));
        const bool good = runToday();
        EXPECT_LE(good ? 1 : 0, marked()) << logged();
        for (const std::string& name : names())
            EXPECT_THAT(inDay(name), AnyOf(old(name), fresh(name))) << name;
        EXPECT_EQ(folder.get("vell.ini"), settings);
        if (!files.hasFailed()) break;
        for (const DaySummary& day : program.downloads().summary().Days) {
            for (const FailedFile& file : day.FailedFiles)
                EXPECT_EQ(file.Why, Failure{Cause::DiskFull}) << file.Name << logged();
            EXPECT_THAT(day.BrokenOff.value_or(Failure{Cause::DiskFull}).Why,
                        AnyOf(Cause::DiskFull, Cause::FolderUnwritable, Cause::NoFolder));
        }
        EXPECT_THAT(logged() + std::string(program.settingsComplaint()),
                    AnyOf(HasSubstr("Disk full"), HasSubstr("Not enough free space"), HasSubstr("cannot be read")));
        files.failAt(0);
        EXPECT_TRUE(runToday()) << logged();
        EXPECT_EQ(marked(), 1);
        EXPECT_EQ(inDay("ALERT.MSG"), "strike\r\n");
        EXPECT_EQ(folder.get("ADVERTISMENT.JPG"), "jpeg");
        EXPECT_THAT(files.Enumerate(folder.text() + "/clips/07032004", ".*", Files::Kind::Files), IsEmpty());
    } while (!HasFailure());
    EXPECT_GT(n, 10) << "a run has more places than that";
}

INSTANTIATE_TEST_SUITE_P(Runs, DiskFaultsTest,
                         testing::Combine(testing::Values("HTTP", "FTP"),
                                          testing::Values(FaultyFiles::Fault::Once,
                                                          FaultyFiles::Fault::FullFromThenOn)),
                         [](const auto& run) {
                             return std::string(std::get<0>(run.param)) +
                                    (std::get<1>(run.param) == FaultyFiles::Fault::Once ? "OneCall" : "DiskFull");
                         });

}  // namespace vell::test
