// SPDX-License-Identifier: MIT
#include <ctime>

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/timer.h>

#include "desktop/WindowLoop.h"
#include "platform/SystemTypes.h"
#include "platform/asio/AsioEventLoop.h"
#include "tests/desktop/ToolkitTest.h"

namespace vell::test {
namespace {

// The two event loops on a real display.
class WindowLoopTest : public ToolkitTest {
  protected:
    // Runs the toolkit's main loop, which calls `body` from a handler of its own, until the body ends it.
    template <class Body>
    void inMainLoop(Body body) {
        wxTheApp->CallAfter(body);
        wxTheApp->OnRun();
    }
    static void endMainLoop() { wxTheApp->ExitMainLoop(); }

    SystemClock clock;
    AsioEventLoop loop{clock};
    WindowLoop marriage{loop};
};

TEST_F(WindowLoopTest, handlersOfTheWindowYieldToAnyDepth) {
    int deepest = 0;
    std::function<void(int)> descend = [&](int depth) {
        deepest = std::max(deepest, depth);
        if (depth == 30) return;
        wxTheApp->CallAfter([&descend, depth] { descend(depth + 1); });
        loop.DoEvents();
        EXPECT_EQ(deepest, 30) << "the window's inner event did not happen inside the yield of depth " << depth;
    };
    inMainLoop([&] {
        descend(1);
        endMainLoop();
    });
    EXPECT_EQ(deepest, 30);
}

TEST_F(WindowLoopTest, aWaitHandlesTheWindowAndTicksThatYield) {
    int ticks = 0;
    bool seen = false;
    const auto timer = loop.SetTimer(15, [&] {
        ++ticks;
        loop.DoEvents();
    });
    wxTimer ofTheWindow;
    ofTheWindow.Bind(wxEVT_TIMER, [&](wxTimerEvent&) { seen = true; });
    inMainLoop([&] {
        ofTheWindow.StartOnce(100);
        for (int i = 0; i < 200 && !seen; ++i)
            loop.WaitForEvents(10);
        endMainLoop();
    });
    EXPECT_TRUE(seen);
    EXPECT_GE(ticks, 3);
    loop.KillTimer(timer);
}

TEST_F(WindowLoopTest, timersTickUnderAModalDialogAndInTheIdleWindow) {
    int ticks = 0;
    wxDialog dialog(nullptr, wxID_ANY, "modal");
    const auto timer = loop.SetTimer(20, [&] {
        if (++ticks == 3) dialog.EndModal(wxID_OK);
        if (ticks == 6) endMainLoop();
    });
    inMainLoop([&] {
        EXPECT_EQ(dialog.ShowModal(), wxID_OK);
        EXPECT_EQ(ticks, 3);
    });
    EXPECT_EQ(ticks, 6) << "the idle window's timer wakes the program";
    loop.KillTimer(timer);
}

TEST_F(WindowLoopTest, aDialogThatATickOpensHoldsUpNoOtherTick) {
    int ticks = 0;
    wxDialog dialog(nullptr, wxID_ANY, "modal");
    const auto timer = loop.SetTimer(20, [&] {
        if (++ticks == 1) {
            dialog.ShowModal();
            endMainLoop();
        } else if (ticks == 4) {
            dialog.EndModal(wxID_OK);
        }
    });
    wxTimer lastResort;  // ends a test whose ticks do not come
    lastResort.Bind(wxEVT_TIMER, [&](wxTimerEvent&) { dialog.EndModal(wxID_CANCEL); });
    inMainLoop([&] { lastResort.StartOnce(5000); });
    loop.KillTimer(timer);
    EXPECT_EQ(dialog.GetReturnCode(), wxID_OK);
}

TEST_F(WindowLoopTest, anIdleWindowUsesNoProcessorTime) {
    wxTimer end;
    end.Bind(wxEVT_TIMER, [](wxTimerEvent&) { endMainLoop(); });
    const auto seldom = loop.SetTimer(200, [] {});
    std::clock_t begun = 0;
    inMainLoop([&] {
        loop.DoEvents();
        begun = std::clock();
        end.StartOnce(1000);
    });
    EXPECT_LT(static_cast<double>(std::clock() - begun) / CLOCKS_PER_SEC, 0.1);
    loop.KillTimer(seldom);
}

}  // namespace
}  // namespace vell::test
