// SPDX-License-Identifier: MIT
#include <chrono>
#include <csignal>
#include <map>
#include <thread>

#include <archive.h>
#include <archive_entry.h>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/errors.h"
#include "platform/posix/update/PosixInstallation.h"
#include "tests/support/TempFolder.h"
#include "tests/support/waitForLock.h"

namespace vell::test {
namespace {

struct Packed {
    std::string Name;
    std::string Content;
    mode_t Type = AE_IFREG;
    std::string HardLink = {};
};

std::string programOf(const std::string& version) {
    return "#!/bin/sh\necho vell-console " + version + "\n";
}

// What a release of that version holds.
std::vector<Packed> releaseOf(const std::string& version) {
    const std::string top = "vell-" + version;
    return {{top + "/bin/vell-console", programOf(version)},
            {top + "/share/doc/a.txt", "a " + version},
            {top + "/share/new.txt", "n " + version}};
}

// Version 1.0.0, installed in a folder of its user's.
class PosixInstallationTest : public testing::Test {
  protected:
    PosixInstallationTest() {
        reinstallOld();
        pack(releaseOf("2.0.0"));
    }
    void reinstallOld() const {
        std::filesystem::remove_all(folder_.path() / "own");
        folder_.put("own/bin/vell-console", programOf("1.0.0"));
        folder_.put("own/share/doc/a.txt", "a 1.0.0");
        std::filesystem::permissions(folder_.path() / "own/bin/vell-console", std::filesystem::perms::owner_all);
    }
    void pack(const std::vector<Packed>& entries) {
        archive* writer = archive_write_new();
        archive_write_add_filter_gzip(writer);
        archive_write_set_format_pax_restricted(writer);
        archive_write_open_filename(writer, (folder_.path() / "a.tar.gz").c_str());
        for (const Packed& packed : entries) {
            archive_entry* entry = archive_entry_new();
            archive_entry_set_pathname(entry, packed.Name.c_str());
            archive_entry_set_filetype(entry, packed.Type);
            archive_entry_set_perm(entry, 0755);
            archive_entry_set_size(entry, static_cast<la_int64_t>(packed.Content.size()));
            if (packed.Type == AE_IFLNK) archive_entry_set_symlink(entry, "/tmp");
            if (!packed.HardLink.empty()) archive_entry_set_hardlink(entry, packed.HardLink.c_str());
            archive_write_header(writer, entry);
            archive_write_data(writer, packed.Content.data(), packed.Content.size());
            archive_entry_free(entry);
        }
        archive_write_free(writer);
    }
    [[nodiscard]] PosixInstallation::Start start() const {
        const std::string program = folder_.get("own/bin/vell-console");
        return {folder_.text() + "/own/bin/vell-console", {"vell-console"}, program.substr(program.size() - 6, 5)};
    }
    // Every file of the installation, with its content, but those that only an update in progress needs.
    [[nodiscard]] std::string installed() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.path() / "own"))
            if (entry.is_regular_file() && entry.path().filename() != "LOCK" && entry.path().extension() != ".part") {
                const auto name = std::filesystem::relative(entry.path(), folder_.path()).string();
                files[name] = folder_.get(name);
            }
        std::string all;
        for (auto& [name, content] : files) {
            std::erase(content, '\n');
            all +=
                name.substr(4) + ":" + content.substr(content.size() - std::min<std::size_t>(content.size(), 5)) + " ";
        }
        return all;
    }
    // As a start of the program does it. Whether the program came up.
    void startOnce(bool comesUp = true) {
        for (int i = 0; i < 3; ++i) {
            PosixInstallation own(start());
            if (own.settle()) continue;
            if (comesUp) own.CameUp();
            return;
        }
        FAIL() << "restarts for ever";
    }
    void install() { PosixInstallation(start()).Install(folder_.text() + "\\a.tar.gz", "2.0.0"); }

    const std::string old_ = "bin/vell-console:1.0.0 share/doc/a.txt:1.0.0 ";
    const std::string new_ = "bin/vell-console:2.0.0 share/doc/a.txt:2.0.0 share/new.txt:2.0.0 ";
    TempFolder folder_;
};

TEST_F(PosixInstallationTest, keepsTheOldProgramUntilTheNewOneHasComeUp) {
    install();
    EXPECT_THAT(installed(), testing::StartsWith(".vell-update/PREVIOUS/" + old_.substr(0, 10)));
    startOnce();
    EXPECT_EQ(installed(), new_);
}

TEST_F(PosixInstallationTest, refusesWhatIsNoProgramOfOursAndLeavesNothingOfIt) {
    const auto with = [](Packed packed) {
        auto entries = releaseOf("2.0.0");
        entries.push_back(std::move(packed));
        return entries;
    };
    const struct {
        const char* Case;
        std::vector<Packed> Entries;
    } cases[] = {
        {"absolute", with({"/tmp/vell-escaped", "x"})},
        {"above", with({"vell-2.0.0/../escaped", "x"})},
        {"above at the end", with({"vell-2.0.0/bin/..", "x"})},
        {"elsewhere", with({"escaped", "x"})},
        {"dot", with({"vell-2.0.0/./bin/x", "x"})},
        {"backslash", with({"vell-2.0.0/bin\\x", "x"})},
        {"control character", with({"vell-2.0.0/bin/\nx", "x"})},
        {"symbolic link", with({"vell-2.0.0/bin/link", "", AE_IFLNK})},
        {"hard link", with({"vell-2.0.0/bin/link", "", AE_IFREG, "vell-2.0.0/bin/vell-console"})},
        {"pipe", with({"vell-2.0.0/bin/pipe", "", AE_IFIFO})},
        {"twice", with({"vell-2.0.0/bin/vell-console", "x"})},
        {"a file for a folder", with({"vell-2.0.0/share/doc/a.txt/b", "x"})},
        {"of another version", releaseOf("3.0.0")},
        {"without the program", {{"vell-2.0.0/share/a", "x"}}},
        {"says another version", {{"vell-2.0.0/bin/vell-console", programOf("2.0.1")}}},
        {"does not start", {{"vell-2.0.0/bin/vell-console", "no program"}}},
        {"empty", {}},
    };
    for (const auto& c : cases) {
        pack(c.Entries);
        EXPECT_THROW(install(), std::exception) << c.Case;
        EXPECT_EQ(installed(), old_) << c.Case;
    }
    for (const std::string& bytes : {std::string(), std::string("\x1f\x8b\x08"), std::string(5000, 'x')}) {
        folder_.put("a.tar.gz", bytes);
        EXPECT_THROW(install(), std::exception) << bytes.size();
        EXPECT_EQ(installed(), old_);
    }
    EXPECT_FALSE(std::filesystem::exists("/tmp/vell-escaped"));
    EXPECT_FALSE(folder_.has("own/escaped"));
}

TEST_F(PosixInstallationTest, aFailureInTheMiddlePutsTheOldProgramBack) {
    // What cannot be moved in: a folder lies where a file is to be.
    folder_.put("own/share/new.txt/in the way", "x");
    EXPECT_THROW(install(), std::exception);
    std::filesystem::remove_all(folder_.path() / "own/share/new.txt");
    EXPECT_EQ(installed(), old_);
}

TEST_F(PosixInstallationTest, aProgramThatDiesBeforeItIsUpGivesWayToTheOldOne) {
    install();
    const pid_t child = fork();
    if (child == 0) {
        PosixInstallation own(start());
        (void)own.settle();
        raise(SIGKILL);
    }
    waitpid(child, nullptr, 0);
    PosixInstallation own(start());
    EXPECT_TRUE(own.settle());
    PosixInstallation restarted(start());
    EXPECT_FALSE(restarted.settle());
    EXPECT_EQ(restarted.TakePutBack(), "2.0.0");
    EXPECT_EQ(restarted.TakePutBack(), std::nullopt);
    EXPECT_EQ(installed(), old_);
}

TEST_F(PosixInstallationTest, anOrderlyEndBeforeItIsUpIsNoFailureAndASecondStartMeanwhileNoTrial) {
    install();
    startOnce(false);
    {
        PosixInstallation first(start()), second(start());
        EXPECT_FALSE(first.settle());
        EXPECT_FALSE(second.settle());
        second.CameUp();
        EXPECT_THROW(install(), RunTimeError) << "the files are being tried";
    }
    startOnce();
    EXPECT_EQ(installed(), new_);
}

TEST_F(PosixInstallationTest, killedAtAnyMomentItIsTheOldProgramOrTheNewOne) {
    // In a process of its own each time: one that has run a program has threads, which a fork leaves behind.
    const auto update = [this] {
        const pid_t child = fork();
        if (child == 0) {
            install();
            startOnce();
            _exit(0);
        }
        return child;
    };
    const auto begun = std::chrono::steady_clock::now();
    waitpid(update(), nullptr, 0);
    const auto whole = std::chrono::steady_clock::now() - begun;
    EXPECT_EQ(installed(), new_);
    for (int moment = 0; moment < 100; ++moment) {
        reinstallOld();
        const pid_t child = update();
        std::this_thread::sleep_for(whole * moment / 80);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        waitForLock(folder_.text() + "/own/.vell-update/LOCK");
        ASSERT_EQ(access((folder_.text() + "/own/bin/vell-console").c_str(), X_OK), 0) << moment;
        startOnce();
        ASSERT_THAT(installed(), testing::AnyOf(old_, new_)) << moment;
    }
}

}  // namespace
}  // namespace vell::test
