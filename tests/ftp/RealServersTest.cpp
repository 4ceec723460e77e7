// SPDX-License-Identifier: MIT
#include <filesystem>
#include <map>
#include <optional>

#include "tests/ftp/FtpFixture.h"
#include "tests/ftp/FtpServerProcess.h"

namespace vell::test {
namespace {

namespace fs = std::filesystem;
using testing::Each;

// Servers that others wrote, each serving `remote`.
class RealServersTest : public FtpFixture, public testing::WithParamInterface<std::string> {
  protected:
    RealServersTest() : FtpFixture(std::chrono::milliseconds{1}) {
        for (unsigned i = 0; pdf.size() < 700'000; ++i)
            pdf += static_cast<char>(i * i >> 3);
        remote.put("clips/a.pdf", pdf);
        remote.put("clips/empty.txt", "");
        fs::create_directory(remote.path() / "clips/inner");
        fs::create_symlink("a.pdf", remote.path() / "clips/link");
        fs::create_symlink("inner", remote.path() / "clips/way");
    }
    void SetUp() override {
        server.emplace(GetParam(), remote);
        if (server->port() == 0) GTEST_SKIP() << "not installed";
        ftp.Port = server->port();
        ftp.Timeout = 600;  // the driven clock runs faster than the server
        ASSERT_THAT((std::vector{ftp.Connect(), ftp.SetCurrentDirectory("clips")}), Each(true))
            << ftp.GetFtpErrorDescription();
    }

    std::string pdf;
    TempFolder remote;
    std::optional<FtpServerProcess> server;
};

TEST_P(RealServersTest, listFilesLinksAndFoldersAndRefuseAStranger) {
    EXPECT_FALSE(ftp.CurrentDirectory().ends_with("/clips"));
    EXPECT_TRUE(ftp.GetCurrentDirectory());
    EXPECT_TRUE(ftp.CurrentDirectory().ends_with("/clips")) << ftp.CurrentDirectory();
    std::map<std::string, CFtpFile> found;
    for (const auto& file : ftp.EnumFilesCriteria("-a"))
        found[file->FileName] = *file;
    ASSERT_EQ(found.size(), 5U);
    EXPECT_EQ(found.at("a.pdf").FileSize, pdf.size());
    EXPECT_EQ(found.at("a.pdf").Permissions.substr(0, 4), "-rw-");
    EXPECT_TRUE(found.at("inner").IsDirectory);
    EXPECT_TRUE(found.at("way").IsDirectory);
    EXPECT_FALSE(found.at("link").IsDirectory);
    EXPECT_EQ(found.at("link").FilePath, "a.pdf");
    EXPECT_TRUE(ftp.SetCurrentDirectory("inner"));
    EXPECT_EQ(ftp.EnumFiles().Count(), 0);
    ftp.UserName = ftp.Password = "stranger";
    EXPECT_FALSE(ftp.Connect());
    EXPECT_EQ(ftp.FtpGetLastError(), 52);
}

TEST_P(RealServersTest, giveAndTakeFilesInBothModes) {
    folder.put("rest.pdf", pdf.substr(0, 123'456) + "wrong");
    for (const bool passive : {false, true}) {
        ftp.PassiveMode = passive;
        EXPECT_TRUE(ftp.downloadFile("a.pdf", local("a.pdf"), 0)) << ftp.GetFtpErrorDescription();
        EXPECT_FALSE(ftp.downloadFile("missing.pdf", local("a.pdf"), 0));
        EXPECT_EQ(ftp.FtpGetLastError(), 54);
        EXPECT_EQ(folder.get("a.pdf"), pdf);
        EXPECT_TRUE(ftp.downloadFile("a.pdf", local("rest.pdf"), 123'456));
        EXPECT_EQ(folder.get("rest.pdf"), pdf);
        EXPECT_TRUE(ftp.downloadFile("empty.txt", local("empty.txt"), 0));
        EXPECT_EQ(folder.get("empty.txt"), "");
        EXPECT_THAT((std::vector{ftp.CreateDirectory("new"), ftp.SetCurrentDirectory("new"),
                                 ftp.UploadFile(local("a.pdf"), "x"), ftp.UploadFile(local("empty.txt"), "0")}),
                    Each(true))
            << ftp.GetFtpErrorDescription();
        EXPECT_THAT(told, testing::Contains("Up 700000"));
        EXPECT_EQ(remote.get("clips/new/x"), pdf);
        EXPECT_TRUE(ftp.RenameFile("x", "y"));
        EXPECT_TRUE(remote.has("clips/new/y"));
        EXPECT_THAT((std::vector{ftp.DeleteFile("y"), ftp.DeleteFile("0"), ftp.SetParentAsCurrentDirectory(),
                                 ftp.RemoveDirectory("new"), ftp.RemoveDirectory("new")}),
                    testing::ElementsAre(true, true, true, true, false));
        EXPECT_FALSE(remote.has("clips/new"));
    }
    EXPECT_TRUE(ftp.CloseConnection());
}

TEST_P(RealServersTest, abortInTheMiddleAndResume) {
    std::string big;
    while (big.size() < 40'000'000)  // more than the system's buffers between the two take
        big += pdf;
    remote.put("clips/big", big);
    onTold = [&](const std::string& what) {
        if (!what.starts_with("Down") || !ftp.IsConnected()) return;
        EXPECT_FALSE(ftp.CloseConnection());
        EXPECT_TRUE(ftp.CancelTransfer()) << ftp.GetFtpErrorDescription();
    };
    EXPECT_FALSE(ftp.downloadFile("big", local("big"), 0));
    EXPECT_FALSE(ftp.IsConnected());
    const auto here = static_cast<std::int32_t>(folder.get("big").size());
    EXPECT_THAT(here, testing::AllOf(testing::Gt(0), testing::Lt(static_cast<int>(big.size()))));
    onTold = [](const std::string&) {};
    EXPECT_THAT(
        (std::vector{ftp.Connect(), ftp.SetCurrentDirectory("clips"), ftp.downloadFile("big", local("big"), here)}),
        Each(true));
    EXPECT_TRUE(folder.get("big") == big);
}

INSTANTIATE_TEST_SUITE_P(Each, RealServersTest, testing::Values("pyftpdlib", "proftpd"),
                         [](const auto& server) { return server.param; });

}  // namespace
}  // namespace vell::test
