// SPDX-License-Identifier: MIT
#include <filesystem>

#include <gtest/gtest.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/errors.h"
#include "platform/posix/program/PosixProcess.h"
#include "tests/support/TempFolder.h"

namespace vell::test {
namespace {

TEST(ProgramPlaceTest, aPortableProgramKeepsItsDataBesideItAndAnInstalledOneInTheUsersFolder) {
    const TempFolder folder;
    const auto data = folder.text() + "/data/share";
    const ProgramPlace portable{folder.text() + "/vell-console", data, std::nullopt};
    EXPECT_EQ(portable.programFolder(), folder.text());
    EXPECT_FALSE(folder.has("data"));
    for (const char* executable : {"/usr/bin/vell", "/usr/local/bin/vell", "/opt/vell/bin/vell"}) {
        const ProgramPlace installed{executable, data, std::nullopt};
        EXPECT_EQ(installed.programFolder(), data + "/vell") << executable;
    }
    EXPECT_EQ(std::filesystem::status(data + "/vell").permissions(), std::filesystem::perms{0700});
    const ProgramPlace named{"/usr/bin/vell", data, folder.text() + "/named"};
    EXPECT_EQ(named.programFolder(), folder.text() + "/named");
}

TEST(PosixProcessTest, theFolderIsHeldUntilTheProcessThatHoldsItEnds) {
    const TempFolder folder;
    const ProgramPlace place{folder.text() + "/vell-console.bin", "", std::nullopt};
    {
        PosixProcess first(place), second(place);
        EXPECT_FALSE(first.IsPreviousInstance());
        EXPECT_FALSE(first.IsPreviousInstance());
        EXPECT_TRUE(second.IsPreviousInstance());
        // A program that is started does not hold it further.
        pid_t child = 0;
        std::string program = "sleep", seconds = "60";
        char* arguments[] = {program.data(), seconds.data(), nullptr};
        ASSERT_EQ(posix_spawnp(&child, "sleep", nullptr, nullptr, arguments, environ), 0);
        first = PosixProcess(place);
        bool isHeld = true;  // the system closes our files in the child a moment after the call has returned
        for (int attempt = 0; isHeld && attempt < 100'000; ++attempt)
            isHeld = second.IsPreviousInstance();
        EXPECT_FALSE(isHeld);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }
    EXPECT_FALSE(PosixProcess(place).IsPreviousInstance());
}

TEST(PosixProcessTest, aFolderThatTheCodePageCannotExpressIsRefused) {
    const TempFolder folder;
    const ProgramPlace place{"/usr/bin/vell", "", folder.text() + "/日本"};
    EXPECT_THROW(PosixProcess{place}, RunTimeError);
}

}  // namespace
}  // namespace vell::test
