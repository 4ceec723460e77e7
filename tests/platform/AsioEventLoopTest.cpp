// SPDX-License-Identifier: MIT
#include <string>
#include <thread>
#include <vector>

#include <asio/io_context.hpp>
#include <asio/post.hpp>
#include <gmock/gmock.h>
#include <time.h>

#include "platform/SystemTypes.h"
#include "platform/asio/AsioEventLoop.h"
#include "tests/support/DrivenClock.h"

namespace vell::test {
namespace {

using std::chrono::milliseconds;

class AsioEventLoopTest : public testing::Test {
  protected:
    void post(std::function<void()> handler) { asio::post(loop_.context(), std::move(handler)); }

    DrivenClock clock_;
    AsioEventLoop loop_{clock_};
};

TEST_F(AsioEventLoopTest, handlersThatYieldLetTheOthersHappenToAnyDepth) {
    std::vector<int> order;
    std::function<void(int)> descend = [&](int depth) {
        order.push_back(depth);
        if (depth == 50) return;
        post([&, depth] { descend(depth + 1); });
        loop_.DoEvents();
        EXPECT_EQ(order.size(), 50u) << "the inner event did not happen inside the yield of depth " << depth;
    };
    post([&] { descend(1); });
    loop_.DoEvents();
    EXPECT_EQ(order.size(), 50u);
}

TEST_F(AsioEventLoopTest, aHandlerThatPostsItselfDoesNotHoldDoEvents) {
    int runs = 0;
    std::function<void()> again = [&] {
        ++runs;
        post(again);
    };
    post(again);
    loop_.DoEvents();
    EXPECT_LE(runs, 4);
}

TEST_F(AsioEventLoopTest, whoAsksAllTheTimeIsHeardEveryFiveMilliseconds) {
    int pumped = 0, happened = 0;
    loop_.setPump([&] { ++pumped; });
    for (int i = 0; i < 20; ++i) {
        post([&] { ++happened; });
        loop_.DoEventsNowAndThen();
        clock_.advance(milliseconds{1});
    }
    EXPECT_EQ(pumped, 4);
    EXPECT_GE(happened, 16);
    loop_.WaitForEvents(1000);
    loop_.WaitForEvents(1000);  // which must not keep the window system waiting for so long
    EXPECT_EQ(pumped, 5);
    loop_.DoEvents();
    EXPECT_EQ(pumped, 6);
}

TEST_F(AsioEventLoopTest, anEscapingErrorIsToldAndTheLoopGoesOn) {
    testing::internal::CaptureStderr();
    bool later = false;
    post([] { throw RunTimeError(53, "File not found"); });
    post([&] { later = true; });
    const auto timer = loop_.SetTimer(10, [] { throw std::bad_alloc(); });
    clock_.advance(milliseconds{10});
    loop_.DoEvents();
    loop_.KillTimer(timer);
    post([] { throw RunTimeError(76, "Path not found"); });
    loop_.WaitForEvents(10);
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::MatchesRegex("Error 53 .*File not found\nError 7 .*\nError 76 .*Path not found\n"));
    EXPECT_TRUE(later);
}

TEST_F(AsioEventLoopTest, aWaitEndsAtTheNextTimerAndMovesTheClockNoFurther) {
    const auto start = clock_.Steady();
    int ticks = 0;
    const auto timer = loop_.SetTimer(30, [&] { ++ticks; });
    loop_.WaitForEvents(1000);
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(clock_.Steady() - start, milliseconds{30});
    loop_.WaitForEvents(10);
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(loop_.untilNextTimer(), milliseconds{20});
    loop_.KillTimer(timer);
    loop_.KillTimer(timer);
    EXPECT_FALSE(loop_.untilNextTimer());
    loop_.Sleep(1000);
    EXPECT_EQ(clock_.Steady() - start, milliseconds{1040});
}

TEST_F(AsioEventLoopTest, missedTicksComeOnceAndATickMayYieldOrEndItsTimer) {
    int ticks = 0;
    EventLoop::TimerId timer = 0;
    timer = loop_.SetTimer(1000, [&] {
        if (++ticks == 1) {
            clock_.advance(milliseconds{1000});
            loop_.DoEvents();  // its own next tick comes here
            EXPECT_EQ(ticks, 2);
        } else {
            loop_.KillTimer(timer);
        }
    });
    clock_.advance(std::chrono::hours{7 * 24});
    loop_.DoEvents();
    EXPECT_EQ(ticks, 2);
    EXPECT_FALSE(loop_.untilNextTimer());
}

TEST_F(AsioEventLoopTest, aWindowSystemIsPumpedAndToldOfTimers) {
    int pumped = 0, told = 0;
    loop_.setPump([&] { ++pumped; });
    loop_.setOnTimersChanged([&] { ++told; });
    const auto timer = loop_.SetTimer(5, [] {});
    loop_.WaitForEvents(5);
    loop_.KillTimer(timer);
    EXPECT_EQ(told, 3);  // made, ticked, ended
    EXPECT_GE(pumped, 1);
}

TEST(AsioEventLoopIdleTest, waitingCostsNoProcessorTime) {
    SystemClock clock;
    AsioEventLoop loop(clock);
    const auto processorTime = [] {
        timespec used{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
        return milliseconds{used.tv_sec * 1000 + used.tv_nsec / 1'000'000};
    };
    const auto start = clock.Steady();
    const auto before = processorTime();
    for (int i = 0; i < 20; ++i)
        loop.WaitForEvents(10);
    EXPECT_GE(clock.Steady() - start, milliseconds{195});
    EXPECT_LT(processorTime() - before, milliseconds{20});
}

TEST(AsioEventLoopIdleTest, aPostFromAnotherThreadEndsTheWait) {
    SystemClock clock;
    AsioEventLoop loop(clock);
    bool happened = false;
    std::thread other([&] { asio::post(loop.context(), [&] { happened = true; }); });
    loop.WaitForEvents(30'000);
    other.join();
    EXPECT_TRUE(happened);
}

}  // namespace
}  // namespace vell::test
