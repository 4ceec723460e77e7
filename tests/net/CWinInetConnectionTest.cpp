// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "net/CWinInetConnection.h"
#include "tests/support/ScriptedBoxes.h"
#include "tests/support/ScriptedConnection.h"

namespace vell::test {
namespace {

using Lines = std::vector<std::string>;

class CWinInetConnectionTest : public testing::Test, protected TextLog {
  protected:
    void WriteLog(std::string_view text) noexcept override { boxes_.Shown.push_back("log: " + std::string(text)); }

    ScriptedConnection api_;
    ScriptedBoxes boxes_;
    CWinInetConnection inet_{api_, boxes_, *this};
};

TEST_F(CWinInetConnectionTest, readsEachFlagAsItsProperty) {
    const std::uint32_t bits[] = {1, 2, 4, 16, 32, 64};
    for (const std::uint32_t flag : bits) {
        api_.flags = flag;
        api_.connected = flag == 2;
        inet_.Refresh();
        const bool read[] = {inet_.UseModem(),       inet_.UseLAN(),    inet_.UseProxy(),
                             inet_.IsRasInstalled(), inet_.IsOffline(), inet_.IsConnectionConfigured()};
        for (std::size_t i = 0; i < std::size(bits); ++i)
            EXPECT_EQ(read[i], bits[i] == flag) << bits[i] << " " << flag;
        EXPECT_EQ(inet_.IsConnected(), flag == 2);
    }
    EXPECT_TRUE(boxes_.Shown.empty());
}

TEST_F(CWinInetConnectionTest, passesOnWhatTheSystemExpects) {
    const bool results[] = {inet_.SetGlobalOnline(),
                            inet_.SetGlobalOffline(),
                            inet_.GoOnline("http://x", 5),
                            inet_.HangUp(),
                            inet_.Dial(9, "My ISP", 0x8000, true),
                            inet_.Dial(9, "My ISP", 0x8000, false),
                            inet_.Autodial(3, 2, false),
                            inet_.Autodial(3, 2, true),
                            inet_.HangUp()};
    EXPECT_THAT(results, testing::Each(true));
    EXPECT_EQ(api_.calls, (Lines{"state 1 0", "state 16 1", "http://x 5", "hangup 0", "dial My ISP 9 49152",
                                 "dial My ISP 9 32768", "auto 0 3", "auto 2 3", "hangup 77"}));
}

TEST_F(CWinInetConnectionTest, reportsAFailureThatHasANumberInABoxAndTheLog) {
    api_.works = false;
    const auto report = [&](std::int32_t code, const std::function<void()>& member) {
        api_.error = code;
        member();
        return std::exchange(boxes_.Shown, {});
    };
    const auto twice = [](const std::string& text) { return Lines{"Error: " + text, "log: " + text}; };
    const auto goOnline = [&] { EXPECT_FALSE(inet_.GoOnline("", 0)); };
    EXPECT_EQ(report(12007, goOnline), twice("GoOnline WinInet API Error: 12007 [library's text]"));
    EXPECT_EQ(boxes_.LastButtons, Buttons::AbortRetryIgnore);
    EXPECT_EQ(report(12001, goOnline), twice("GoOnline WinInet API Error: 12001 [library's text]"));
    EXPECT_EQ(report(12000, goOnline), twice("GoOnline Win32API Error: 12000 [system's text\r\n]"));
    EXPECT_EQ(report(0, goOnline), Lines{});
    EXPECT_EQ(report(-5, goOnline), Lines{});
    EXPECT_EQ(report(5, [&] { EXPECT_FALSE(inet_.SetGlobalOnline()); }).size(), 2U);
    EXPECT_EQ(report(5, [&] { EXPECT_FALSE(inet_.SetGlobalOffline()); }).size(), 2U);
    EXPECT_EQ(report(5, [&] { EXPECT_FALSE(inet_.Dial(0, "", 0, false)); }).size(), 2U);
    EXPECT_EQ(report(5, [&] { inet_.Refresh(); }).size(), 2U);
    EXPECT_EQ(report(5, [&] { EXPECT_FALSE(inet_.Autodial(0, 0, true)); }), Lines{});
    EXPECT_EQ(report(5, [&] { EXPECT_FALSE(inet_.HangUp()); }), Lines{});
    api_.reason = "not authorised";
    EXPECT_EQ(report(0, [&] { inet_.AutodialHangup(); }), Lines{"log: AutodialHangup: not authorised"});
    EXPECT_EQ(inet_.failureReason(), "not authorised");
    api_.works = true;
    EXPECT_TRUE(inet_.HangUp());
    EXPECT_EQ(inet_.failureReason(), "");
}

TEST_F(CWinInetConnectionTest, passesAnUnexpectedErrorOnUnderItsOwnName) {
    api_.onState = [] { throw RunTimeError(7, "Out of memory"); };
    try {
        inet_.Refresh();
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number, 7 - 2147221504 + 1000);
        EXPECT_EQ(error.Source + ": " + error.Description, "CWinInetConnection.Refresh: Out of memory");
    }
}

}  // namespace
}  // namespace vell::test
