// SPDX-License-Identifier: MIT
#include <array>
#include <cstdlib>
#include <filesystem>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/common/documents.h"
#include "platform/posix/files/FileHandle.h"
#include "platform/posix/printing/CupsPrinters.h"
#include "platform/posix/printing/cupsReasons.h"
#include "platform/posix/program/PosixShell.h"
#include "tests/support/TempFolder.h"

namespace vell::test {
namespace {

using std::filesystem::perms;

// Programs that say with which arguments they were started, and a desktop whose viewer for PDF and text is one.
class PosixShellTest : public testing::Test {
  protected:
    // The desktop's folders are read once in a process.
    static void SetUpTestSuite() {
        if (desktop_) return;
        desktop_ = std::make_unique<TempFolder>();
        for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"})
            setenv(variable, desktop_->text().c_str(), 1);
        ASSERT_EQ(mkfifo((desktop_->text() + "/said").c_str(), 0600), 0);
        said_ = FileHandle({"", desktop_->text() + "/said"}, O_RDWR | O_NONBLOCK);
        putProgram(*desktop_, "viewer");
        desktop_->put("applications/vell-viewer.desktop",
                      "[Desktop Entry]\nType=Application\nName=Viewer\nMimeType=application/pdf;text/plain;\n"
                      "Exec=" +
                          desktop_->text() + "/viewer %f\n");
        desktop_->put("applications/vell-browser.desktop",
                      "[Desktop Entry]\nType=Application\nName=Browser\nMimeType=x-scheme-handler/http;\nExec=" +
                          desktop_->text() + "/viewer -- %u\n");
        desktop_->put("mimeapps.list",
                      "[Default Applications]\napplication/pdf=vell-viewer.desktop\ntext/plain=vell-viewer.desktop\n"
                      "inode/directory=vell-viewer.desktop\nx-scheme-handler/http=vell-browser.desktop\n");
    }
    void SetUp() override { setenv("PATH", path_.c_str(), 1); }
    void TearDown() override { setenv("PATH", systemPath_.c_str(), 1); }

    static void putProgram(const TempFolder& folder, const std::string& name, const std::string& last = "") {
        folder.put(name, "#!/bin/sh\nfor a in \"$@\"; do t=\"$t[$a]\"; done\nprintf '%s\\n' \"$t\" > " +
                             desktop_->text() + "/said\n" + last);
        std::filesystem::permissions(folder.path() / name, perms::owner_all);
    }
    // What the program that was started says; it cannot be waited for, so this waits for its words.
    static std::string said() {
        std::string words;
        pollfd ready{said_.get(), POLLIN, 0};
        while (!words.ends_with('\n') && poll(&ready, 1, 20'000) == 1) {
            std::array<char, 4096> part{};
            words.append(part.data(), static_cast<std::size_t>(read(said_.get(), part.data(), part.size())));
        }
        return words.substr(0, words.find('\n'));
    }
    [[nodiscard]] std::string at(const std::string& name) const { return folder_.text() + "\\" + name; }

    static inline std::unique_ptr<TempFolder> desktop_;
    static inline FileHandle said_;
    TempFolder folder_;
    std::string systemPath_ = std::getenv("PATH"), path_ = ":.:" + folder_.text() + "/bin";
    PosixShell shell_{{{folder_.text() + "/own"}, folder_.text() + "/no helper"}};
};

TEST_F(PosixShellTest, aDocumentGoesToTheDesktopsApplicationUnderItsRealName) {
    folder_.put("Day 1/Άρθρο.PDF", "%PDF-1.4\n");
    EXPECT_GT(shell_.Open(at("DAY 1\\\xDC\xF1\xE8\xF1\xEF.pdf"), ""), 32);
    EXPECT_EQ(said(), "[" + folder_.text() + "/Day 1/Άρθρο.PDF]");
    std::filesystem::permissions(folder_.path() / "Day 1/Άρθρο.PDF", perms::owner_all);
    EXPECT_GT(shell_.Open(at("DAY 1\\\xDC\xF1\xE8\xF1\xEF.pdf"), ""), 32) << "it need not be a program";
    EXPECT_EQ(said(), "[" + folder_.text() + "/Day 1/Άρθρο.PDF]");
    EXPECT_GT(shell_.Open(at("day 1\\"), ""), 32);
    EXPECT_EQ(said(), "[" + folder_.text() + "/Day 1]");
    EXPECT_GT(shell_.Open("HTTP://service.example/a?b=c", ""), 32);
    EXPECT_EQ(said(), "[--][HTTP://service.example/a?b=c]");
}

TEST_F(PosixShellTest, aPrintersPropertiesAreItsPageInTheBrowser) {
    std::string reason;
    for (const auto& [name, page] : std::initializer_list<std::pair<const char*, const char*>>{
             {"\xCA/draft", "%CE%9A"}, {"a%b&c", "a%25b%26c"}, {"??", ""}}) {
        EXPECT_TRUE(CupsPrinters().ShowProperties(name, reason)) << reason;
        EXPECT_EQ(said(), "[--][http://localhost:631/printers/" + std::string(page) + "]");
    }
}

TEST_F(PosixShellTest, aProgramIsFoundBesideOursThenAlongThePathAndGetsItsArguments) {
    putProgram(folder_, "own/Reader");
    putProgram(folder_, "bin/Reader");
    putProgram(folder_, "bin/other");
    folder_.put("a b.PDF", "x");
    EXPECT_GT(shell_.Open("READER", " /p  /h \"" + at("A b.pdf") + "\" \"\" c\\d"), 32);
    EXPECT_EQ(said(), "[/p][/h][" + folder_.text() + "/a b.PDF][][c\\d]");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "the program is our child still";
    EXPECT_GT(shell_.Open("other", ""), 32);
    EXPECT_EQ(said(), "");
    folder_.put("own/Vellhelp.txt", "help");
    EXPECT_GT(shell_.Open("Vellhelp.TXT", ""), 32);
    EXPECT_EQ(said(), "[" + folder_.text() + "/own/Vellhelp.txt]");
}

TEST_F(PosixShellTest, failuresHaveShellExecutesCodes) {
    folder_.put("a.unknown-kind", std::string("\0\1\2", 3));
    folder_.put("b.desktop", "[Desktop Entry]\nType=Application\nExec=/bin/true\n");
    folder_.put("script", "#!/bin/sh\n");
    folder_.put("bin/garbage", std::string("\0no program", 11));
    std::filesystem::permissions(folder_.path() / "bin/garbage", perms::owner_all);
    for (const auto& [code, names] :
         std::map<int, std::vector<std::string>>{{2, {at("gone.pdf"), "gone", "", "a\nb", "Acrord32.exe"}},
                                                 {3, {at("gone\\a.pdf"), at("script\\a.pdf"), "file:///etc/passwd"}},
                                                 {5, {at("b.desktop"), at("script"), "\\dev\\null"}},
                                                 {11, {"garbage"}},
                                                 {31, {at("a.unknown-kind")}}})
        for (const std::string& name : names)
            EXPECT_EQ(shell_.Open(name, ""), code) << name;
}

TEST_F(PosixShellTest, printingHandsTheFileToCupsAndGivesItsAnswer) {
    setenv("PATH", (path_ + ":" + systemPath_).c_str(), 1);
    folder_.put("-a b.PDF", "x");
    const std::string parameters = " /p /h \"" + at("-A B.pdf") + "\"";
    // How lp ends, the patience, the code, and the reason.
    const std::tuple<std::string, std::chrono::milliseconds, int, std::string> cases[] = {
        {"", std::chrono::seconds{20}, 33, ""},
        {"echo 'lp: Error - No default destination.' >&2; exit 1\n", std::chrono::seconds{20}, 29,
         "There is no default printer. Choose one in the system's printer settings, or with 'lpoptions -d NAME'. CUPS "
         "says: No default destination."},
        {"exit 3\n", std::chrono::seconds{20}, 29, std::string(cups_reason::Refused)},
        {"exec sleep 60\n", std::chrono::milliseconds{300}, 28, std::string(cups_reason::NoAnswer)},
    };
    for (const auto& [ending, patience, code, reason] : cases) {
        putProgram(folder_, "bin/lp", ending);
        PosixShell installed(PosixShell::Places::ofThisProgram(), patience);
        EXPECT_EQ(installed.Open(pdfReader, parameters), code) << ending;
        EXPECT_EQ(installed.LastReason(), reason);
        EXPECT_EQ(said(), "[--][" + folder_.text() + "/-a b.PDF]");
    }
    setenv("PATH", "/nowhere", 1);
    PosixShell installed;
    EXPECT_EQ(installed.Open(pdfReader, parameters), 2);
    EXPECT_EQ(installed.LastReason(), cups_reason::NotInstalled);
    EXPECT_EQ(installed.Open("", ""), 2);
    EXPECT_EQ(installed.LastReason(), "") << "of another failure";
}

}  // namespace
}  // namespace vell::test
