// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "app/Session.h"
#include "app/progress/TransferProgress.h"
#include "app/run/InternetLink.h"
#include "net/CWinInetConnection.h"
#include "net/ModRAS.h"
#include "platform/asio/AsioEventLoop.h"
#include "tests/support/RecordingView.h"
#include "tests/support/ScriptedBoxes.h"
#include "tests/support/ScriptedConnection.h"
#include "tests/support/ScriptedRas.h"
#include "tests/support/SettingsRig.h"

namespace vell::test {
namespace {

using Lines = std::vector<std::string>;
constexpr std::uint32_t dialUp = ConnectionApi::Modem | ConnectionApi::RasInstalled;
const std::string starting = "Starting 'My ISP' Dial-Up connection.";
const std::string notStarted = "Error starting 'My ISP' Dial-Up connection.";

class InternetLinkTest : public testing::Test, protected SettingsRig {
  protected:
    InternetLinkTest() {
        session.Setup.DialUp = "My ISP";
        view.OnStatus = [this](const std::string&) { EXPECT_EQ(view.Busy, 1); };
    }
    // The status texts that the last step showed.
    Lines statuses() {
        EXPECT_EQ(view.Busy, 0);
        std::string shown = std::exchange(view.Statuses, "");
        if (!shown.empty()) shown.pop_back();
        const auto texts = Split(shown, "\n");
        return {texts.begin(), texts.end()};
    }
    // The connection is found to be down when its state is asked for the n-th time.
    void goDownAt(int looks) {
        api.connected = true;
        api.flags = dialUp;
        api.calls = phoneBook.calls = {};
        api.onState = [this, looks, n = 0]() mutable { api.connected = ++n < looks; };
    }

    Session session;
    AsioEventLoop loop{clock};
    RecordingView view;
    ScriptedBoxes boxes;
    TransferProgress progress{session, view, loop, clock, log, std::chrono::milliseconds{0}};
    ScriptedConnection api;
    ScriptedRas phoneBook;
    CWinInetConnection inet{api, boxes, log};
    ModRAS ras{phoneBook, log};
    InternetLink link{{session.Setup, progress, view, boxes, loop, log, inet, ras}};
};

TEST_F(InternetLinkTest, dialsOnlyWhereAModemIsTheWay) {
    const auto flags = [](const std::string& modem, const std::string& lan, const std::string& rest) {
        return "StartINET Connection Status Flags: \n          IsOffline              : False\n"
               "          IsConnectionConfigured : False\n          IsRasInstalled         : True\n"
               "          UseLAN                 : " +
               lan + "\n          UseModem               : " + modem +
               "\n          UseProxy               : False\n          ConnectionName         : My ISP\n" + rest;
    };
    api.flags = dialUp;
    EXPECT_TRUE(link.StartINET());
    EXPECT_EQ(logged(), flags("True", "False", starting + "\n"));
    EXPECT_EQ(statuses(), Lines{starting});
    EXPECT_EQ(std::exchange(api.calls, {}), (Lines{"state 1 0", "dial My ISP 0 32768"}));
    api.works = false;
    EXPECT_FALSE(link.StartINET());
    EXPECT_EQ(logged(), flags("True", "False", starting + "\n" + notStarted + "\n"));
    EXPECT_EQ(statuses(), (Lines{starting, notStarted}));
    EXPECT_EQ(view.Message, "");
    api.reason = "no carrier";
    EXPECT_FALSE(link.StartINET());
    EXPECT_EQ(view.Message, notStarted + "\r\nno carrier");
    api.reason.clear();
    logged();
    statuses();
    api.flags = ConnectionApi::RasInstalled;
    EXPECT_FALSE(link.StartINET());
    EXPECT_EQ(logged(), flags("False", "False", "Error! There is no LAN connection to the internet.\n"));
    EXPECT_EQ(statuses(), Lines{"Make sure you are connected to the Internet"});
    api.flags |= ConnectionApi::Lan;
    api.connected = true;
    api.calls.clear();
    EXPECT_TRUE(link.StartINET());
    EXPECT_TRUE(link.StopINET(true));
    EXPECT_EQ(logged(), flags("False", "True", ""));
    EXPECT_EQ(api.calls, Lines{"state 1 0"});
}

TEST_F(InternetLinkTest, triesThreeWaysToHangUp) {
    const std::string tail = "Attemp to close Internet Connection using WININET AutodialHangup or Hangup failed!\n";
    const std::string first = "ERROR! 1st " + tail;
    const std::string second = first + "ERROR! 2nd " + tail;
    const std::string third = second + "ERROR! 3rd Attemp to close Internet Connection using RAS Hangup failed!\n";
    const Lines closed{"Internet connection closed."};
    const Lines failed{"Failed closing internet connection."};
    phoneBook.connections = {"My ISP", "Other"};
    const std::tuple<int, bool, bool, std::string, Lines> cases[] = {{2, false, true, "", closed},
                                                                     {3, false, true, first, {}},
                                                                     {4, true, true, second, {}},
                                                                     {4, false, false, third, failed},
                                                                     {5, true, false, third, failed}};
    for (const auto& [downAt, asks, ok, lines, texts] : cases) {
        goDownAt(downAt);
        boxes.Answers = {Answer::Yes};
        EXPECT_EQ(link.StopINET(asks), ok);
        EXPECT_EQ(logged(), lines);
        EXPECT_EQ(statuses(), texts);
        EXPECT_EQ(api.calls.size(), downAt == 2 ? 2U : 4U);
        EXPECT_EQ(phoneBook.calls, downAt > 3 ? (Lines{"hangup 100", "hangup 101"}) : Lines{});
    }
    goDownAt(2);
    boxes.Answers.clear();
    EXPECT_TRUE(link.StopINET(true));
    EXPECT_EQ(boxes.Shown, Lines(3, "Do you want to close the dial-up connection?"));
    EXPECT_EQ(boxes.LastButtons, Buttons::YesNo);
    EXPECT_EQ(api.calls, Lines{});
}

TEST_F(InternetLinkTest, goesOnWithItsNextStatementAfterAnError) {
    goDownAt(9);
    EXPECT_FALSE(link.StopINET(false));
    (void)logged();
    api.onState = [] { throw RunTimeError(5, "broken"); };
    EXPECT_FALSE(link.StopINET(false));
    const std::string story = logged();
    EXPECT_NE(story.find("in StopINET()\nERROR! 2nd"), std::string::npos) << story;
    EXPECT_NE(story.find("ERROR! 3rd"), std::string::npos) << story;
    EXPECT_FALSE(link.StartINET());
}

}  // namespace
}  // namespace vell::test
