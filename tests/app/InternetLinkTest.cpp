// SPDX-License-Identifier: MIT
#include <algorithm>

#include <gtest/gtest.h>

#include "app/InternetLink.h"
#include "config/Settings.h"
#include "net/CWinInetConnection.h"
#include "net/ModRAS.h"
#include "platform/asio/AsioEventLoop.h"
#include "platform/posix/NetworkManagerClient.h"
#include "platform/posix/PosixConnection.h"
#include "platform/posix/PosixRas.h"
#include "service/RunFeedback.h"
#include "tests/support/DrivenClock.h"
#include "tests/support/MockNetworkManager.h"
#include "tests/support/Recorder.h"
#include "tests/support/ScriptedConnection.h"
#include "tests/support/ScriptedRas.h"
#include "ui/BrowserView.h"

namespace vell::test {
namespace {

constexpr std::uint32_t online = ConnectionApi::Modem | ConnectionApi::RasInstalled;

class InternetLinkTest : public testing::Test, protected BrowserView, protected RunFeedback {
  protected:
    InternetLinkTest() { settings_.DialUp = "My ISP"; }
    void showDays(const std::vector<std::string>&, const std::string&) override {}
    void showClippings(const std::vector<ClippingRow>&) override {}
    void showMarks(std::size_t) override {}
    void showCount(std::string_view) override {}
    void showAlert(std::string_view) override {}
    void showAdvertisement(const std::string&) override {}
    void showBusy(bool busy) override { busy_ += busy ? 1 : -1; }
    std::string statusText() const override { return {}; }
    void displayInfoMessageBox(std::string_view) override {}
    void HTTPDownloadProgress(std::int32_t) override {}
    void openSetup() override {}
    void StatusBar(std::string_view text) override {
        EXPECT_EQ(busy_, 1);
        user_.lines.push_back("status: " + std::string(text));
    }

    Lines told() {
        EXPECT_EQ(busy_, 0);
        return user_.told();
    }
    InternetLink link(CWinInetConnection& inet, ModRAS& ras) {
        return InternetLink({settings_, *this, *this, user_, loop_, user_, user_, inet, ras});
    }
    [[nodiscard]] static Lines flagLines(std::string_view modem, Lines more) {
        Lines lines{"log: StartINET Connection Status Flags: ",
                    "log:           IsOffline              : False",
                    "log:           IsConnectionConfigured : False",
                    "log:           IsRasInstalled         : True",
                    "log:           UseLAN                 : False",
                    "log:           UseModem               : " + std::string(modem),
                    "log:           UseProxy               : False",
                    "log:           ConnectionName         : My ISP"};
        lines.insert(lines.end(), more.begin(), more.end());
        return lines;
    }
    // The connection goes down when its state is asked for the n-th time.
    void goDownAt(int looks) {
        api_.connected = true;
        api_.flags = online;
        api_.calls.clear();
        api_.onState = [this, looks, n = 0]() mutable { api_.connected = ++n < looks; };
    }

    Settings settings_;
    DrivenClock clock_;
    AsioEventLoop loop_{clock_};
    Recorder user_;
    int busy_ = 0;
    ScriptedConnection api_;
    ScriptedRas phoneBook_;
    CWinInetConnection inet_{api_, user_, user_};
    ModRAS ras_{phoneBook_, user_};
    InternetLink link_ = link(inet_, ras_);
};

TEST_F(InternetLinkTest, dialsOnlyWhereAModemIsTheWay) {
    const std::string starting = "Starting 'My ISP' Dial-Up connection.";
    const std::string failed = "Error starting 'My ISP' Dial-Up connection.";
    api_.flags = online;
    EXPECT_TRUE(link_.StartINET());
    EXPECT_EQ(told(), flagLines("True", {"status: " + starting, "log: " + starting}));
    api_.works = false;
    EXPECT_FALSE(link_.StartINET());
    EXPECT_EQ(told(),
              flagLines("True", {"status: " + starting, "log: " + starting, "status: " + failed, "log: " + failed}));
    api_.flags = ConnectionApi::RasInstalled;
    EXPECT_FALSE(link_.StartINET());
    EXPECT_EQ(told(), flagLines("False", {"status: Make sure you are connected to the Internet",
                                          "log: Error! There is no LAN connection to the internet."}));
    api_.connected = true;
    EXPECT_TRUE(link_.StartINET() && link_.StopINET(true));
    EXPECT_EQ(told(), flagLines("False", {}));
    const Lines once{"state 1 0", "dial My ISP 0 32768"};
    EXPECT_EQ(api_.calls, (Lines{once[0], once[1], once[0], once[1], once[0], once[0]}));
}

TEST_F(InternetLinkTest, triesThreeWaysToHangUp) {
    const std::string tail = "Attemp to close Internet Connection using WININET AutodialHangup or Hangup failed!";
    const Lines errors{"log: ERROR! 1st " + tail, "log: ERROR! 2nd " + tail,
                       "log: ERROR! 3rd Attemp to close Internet Connection using RAS Hangup failed!",
                       "status: Failed closing internet connection."};
    phoneBook_.connections = {"My ISP", "Other"};
    struct Case {
        int DownAt;
        bool Ask;
        bool Ok;
        Lines Told;
        std::size_t Calls;
    };
    const std::string question = "box: Do you want to close the dial-up connection?";
    for (const Case& one :
         {Case{2, false, true, {"status: Internet connection closed."}, 2}, Case{3, false, true, {errors[0]}, 4},
          Case{4, true, true, {question, errors[0], errors[1]}, 4}, Case{4, false, false, errors, 4},
          Case{5, true, false, {question, errors[0], errors[1], errors[2], errors[3]}, 4}}) {
        goDownAt(one.DownAt);
        phoneBook_.calls.clear();
        EXPECT_EQ(link_.StopINET(one.Ask), one.Ok);
        EXPECT_EQ(told(), one.Told);
        EXPECT_EQ(api_.calls.size(), one.Calls);
        EXPECT_EQ(phoneBook_.calls, one.DownAt > 3 ? (Lines{"hangup 100", "hangup 101"}) : Lines{});
    }
    goDownAt(2);
    user_.answer = Answer::No;
    EXPECT_TRUE(link_.StopINET(true));
    EXPECT_EQ(told(), Lines{question});
    EXPECT_EQ(api_.calls, Lines{});
}

TEST_F(InternetLinkTest, goesOnWithItsNextStatementAfterAnError) {
    goDownAt(9);
    EXPECT_FALSE(link_.StopINET(false));
    EXPECT_EQ(told().size(), 4U);
    api_.onState = [] { throw RunTimeError(5, "broken"); };
    EXPECT_FALSE(link_.StopINET(false));
    EXPECT_EQ(std::ranges::count(user_.lines, "error: broken in StopINET()"), 3);
    EXPECT_EQ(told().size(), 7U);
    EXPECT_FALSE(link_.StartINET());
    EXPECT_EQ(told(), Lines{"error: broken in StartINET()"});
}

TEST_F(InternetLinkTest, dialsAndHangsUpThroughNetworkManager) {
    if (!MockNetworkManager::isAvailable()) GTEST_SKIP() << "needs dbus and python3-dbusmock";
    MockNetworkManager mock("{}");
    NetworkManagerClient client(loop_, clock_, mock.address());
    PosixConnection connection(client, "", {});
    PosixRas profiles(client);
    CWinInetConnection inet(connection, user_, user_);
    ModRAS ras(profiles, user_);
    InternetLink real = link(inet, ras);
    EXPECT_TRUE(real.StartINET());
    EXPECT_EQ(ras.GetDialUpConnections(), Lines{"My ISP"});
    EXPECT_EQ(told().size(), 10U);
    EXPECT_TRUE(real.StopINET(false));
    EXPECT_EQ(told(), Lines{"status: Internet connection closed."});
    EXPECT_EQ(ras.GetDialUpConnections(), Lines{});
    settings_.DialUp = "Forbidden";
    EXPECT_FALSE(real.StartINET());
    EXPECT_EQ(told()[10], "log: Dial: NetworkManager refused, not authorised: Not authorized to control networking.");
}

}  // namespace
}  // namespace vell::test
