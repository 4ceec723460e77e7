// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <filesystem>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>

#include "platform/posix/files/FileHandle.h"
#include "platform/posix/printing/CupsPrinters.h"
#include "tests/support/TempFolder.h"

namespace vell::test {
namespace {

using testing::EndsWith, testing::StartsWith;

// CUPS as far as its commands show it.
class CupsPrintersTest : public testing::Test {
  protected:
    void SetUp() override { setenv("PATH", (folder_.text() + ":" + systemPath_).c_str(), 1); }
    void TearDown() override { setenv("PATH", systemPath_.c_str(), 1); }

    void put(const std::string& command, const std::string& script) const {
        folder_.put(command, "#!/bin/sh\n" + script);
        std::filesystem::permissions(folder_.path() / command, std::filesystem::perms::owner_all);
    }
    // The settings of the default printer, or why there are none.
    std::string asked(std::chrono::milliseconds patience = std::chrono::seconds{20}) {
        std::string reason;
        const auto printer = CupsPrinters(patience).DefaultPrinter(reason);
        if (!printer) return reason;
        return printer->DeviceName + "," + std::to_string(printer->PaperSize) + "," +
               std::to_string(printer->Orientation) + "," + std::to_string(printer->PrintQuality) + "," +
               std::to_string(printer->Zoom);
    }

    TempFolder folder_;
    std::string systemPath_ = std::getenv("PATH");
};

TEST_F(CupsPrintersTest, tellsThePrintersOptionsInNumbers) {
    put("lpstat", "[ \"$LC_ALL $*\" = 'C -d' ] && echo 'system default destination: Γραφείο/draft'\n");
    put("lpoptions", "[ \"$2\" = Γραφείο/draft ] && cat \"" + folder_.text() + "/options$3\"\necho fault >&2\n");
    // What the queue says, what its driver says, and the numbers of it.
    for (const auto& [queue, driver, numbers] :
         std::initializer_list<std::tuple<const char*, const char*, const char*>>{
             {"copies=1 media=iso_a4_210x297mm printer-info=Ann's natural-scaling=50", "", "9,1,0,50"},
             {"media=na_letter_8.5x11in orientation-requested=4 print-quality=3", "PageSize/Size: *A4", "1,2,-1,100"},
             {"b=c fit-to-page=true landscape=true media=A3,Tray1 print-scaling=fit", "", "8,2,0,100"},
             {"job-name='a media=a5 landscape=true' printer-info='Ann's \"b\" media=a3' scaling=70", "", "0,1,0,70"},
             {"orientation-requested=6 print-quality=5", "PageSize/Size: Letter *A4.Borderless", "9,1,-4,100"},
             {"", "PageSize/S: *Custom.20x30mm B5\nResolution/R: 300dpi *600x1200dpi", "256,1,600,100"},
             {"media= scaling=big a=' media=a4", "cupsPrintQuality/Q: Draft *Normal High", "0,1,-3,100"}}) {
        folder_.put("options", std::string(queue) + "\n");
        folder_.put("options-l", driver);
        EXPECT_EQ(asked(), "\xC3\xF1\xE1\xF6\xE5\xDF\xEF/draft," + std::string(numbers)) << queue;
    }
}

TEST_F(CupsPrintersTest, saysWhyThereIsNoPrinterAndWaitsForNoneForEver) {
    put("lpstat", "echo no system default destination\n");
    EXPECT_THAT(asked(), StartsWith("There is no default printer. Choose one"));
    put("lpstat", "echo 'lpstat: error - PRINTER names \"gone\".'\n");
    EXPECT_THAT(asked(), EndsWith(" CUPS says: lpstat: error - PRINTER names \"gone\"."));
    ASSERT_EQ(mkfifo((folder_.path() / "life").c_str(), 0600), 0);
    const FileHandle life({"", folder_.text() + "/life"}, O_RDONLY | O_NONBLOCK);
    put("lpstat", "exec 3>\"" + folder_.text() + "/life\"\nexec sleep 60\n");
    EXPECT_THAT(asked(std::chrono::seconds{1}), StartsWith("The print server does not answer."));
    pollfd ended{life.get(), POLLIN, 0};
    EXPECT_EQ(poll(&ended, 1, 20'000), 1) << "the command that hangs goes on";
    setenv("PATH", "/nowhere", 1);
    EXPECT_THAT(asked(), EndsWith("Install the package cups-client."));
}

}  // namespace
}  // namespace vell::test
