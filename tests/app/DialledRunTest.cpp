// SPDX-License-Identifier: MIT
#include "platform/posix/network/NetworkManagerClient.h"
#include "platform/posix/network/PosixConnection.h"
#include "platform/posix/network/PosixRas.h"
#include "tests/app/ScheduleRig.h"
#include "tests/support/MockNetworkManager.h"

namespace vell::test {

class DialledRunTest : public testing::Test, protected ScheduleRig {};

TEST_F(DialledRunTest, dialsBeforeARunAndHangsUpAfterIt) {
    if (!MockNetworkManager::isAvailable()) GTEST_SKIP() << "needs the packages dbus and python3-dbusmock";
    const MockNetworkManager mock("{}");
    NetworkManagerClient client(loop, clock, mock.address());
    PosixConnection dialUp(client, [] { return std::string(); });
    PosixRas profiles(client);
    frmMain dialling{{clock, loop, files, iniFile, internet, sockets, dialUp, profiles, boxes, *this, shell, printers,
                      signatures, installation, english},
                     view,
                     {"2.1.37", ""}};
    load(dialling, "Schedule1=Sun 06:30\r\n", "DialUp=My ISP\r\nCloseConnection=1\r\n");
    pass(std::chrono::minutes{1});
    clock.advance(std::chrono::seconds{10});
    loop.DoEvents();
    EXPECT_TRUE(logHas("Starting 'My ISP' Dial-Up connection.\nGet/Create dir to put downloaded files.\n")) << logged();
    EXPECT_TRUE(logHas("Stopping internet connection.\nENDED SUN Scheduled download at 06:30\n"));
    EXPECT_NE(view.Statuses.find("Internet connection closed.\n"), std::string::npos);
    std::uint32_t flags = 0;
    EXPECT_FALSE(dialUp.InternetGetConnectedState(flags));
}

}  // namespace vell::test
