// SPDX-License-Identifier: MIT
#include "platform/asio/AsioEventLoop.h"

#include <algorithm>
#include <iostream>
#include <thread>
#include <utility>

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>
#include <asio/post.hpp>

namespace vell {

using std::chrono::milliseconds;

namespace {

// Short against what an eye sees, long against what a look at the events costs.
constexpr milliseconds betweenLooks{5};

void tellStandardError(const RunTimeError& error) {
    std::cerr << "Error " << error.Number << " in an event handler: " << error.Description << '\n';
}

}  // namespace

// What keeps the context waiting when nothing else does. The socket is never opened: that it exists makes the context
// wait in epoll_wait, for a length of time, and not on a condition variable, until a point in time; the latter breaks
// under a faked clock.
struct AsioEventLoop::Anchor {
    explicit Anchor(asio::io_context& context) : Work(context.get_executor()), Unopened(context) {}

    asio::executor_work_guard<asio::io_context::executor_type> Work;
    asio::ip::tcp::socket Unopened;
};

AsioEventLoop::AsioEventLoop(Clock& clock)
    : clock_(clock), context_(std::make_unique<asio::io_context>()), anchor_(std::make_unique<Anchor>(*context_)) {}

AsioEventLoop::~AsioEventLoop() = default;

// The sockets are asked in the wait alone, and not before and after it as well: while bytes come in, each question that
// finds nothing would cost as much as a block.
void AsioEventLoop::WaitForEvents(int length) {
    const milliseconds untilPump = pump_ ? untilDue(pumpedAt_) : milliseconds{0};
    if (untilPump == milliseconds{0}) pumpNow();
    lookedAt_ = clock_.Steady();
    bool happened = fireTimers();
    milliseconds wait{happened ? 0 : std::max(length, 0)};
    if (untilPump > milliseconds{0}) wait = std::min(wait, untilPump);
    if (const auto next = untilNextTimer()) wait = std::min(wait, *next);
    happened = runFor(clock_.realLength(wait)) || happened;
    if (!happened) clock_.passed(wait);
    fireTimers();
}

bool AsioEventLoop::runFor(milliseconds length) {
    if (length <= milliseconds::zero()) return runQueue();
    bool happened = false;
    guarded([&] {
        happened = true;  // also when the handler throws
        happened = context_->run_one_for(length) != 0;
    });
    return happened;
}

void AsioEventLoop::Sleep(int length) {
    const milliseconds wait{std::max(length, 0)};
    std::this_thread::sleep_for(clock_.realLength(wait));
    clock_.passed(wait);
}

EventLoop::TimerId AsioEventLoop::SetTimer(int periodMilliseconds, std::function<void()> tick) {
    const auto timer = timers_.add(clock_.Steady(), milliseconds{periodMilliseconds}, std::move(tick));
    timersChanged();
    return timer;
}

void AsioEventLoop::KillTimer(TimerId timer) {
    timers_.remove(timer);
    timersChanged();
}

void AsioEventLoop::setPump(std::function<void()> pump) {
    pump_ = std::move(pump);
}
void AsioEventLoop::setOnTimersChanged(std::function<void()> changed) {
    onTimersChanged_ = std::move(changed);
}

std::optional<milliseconds> AsioEventLoop::untilNextTimer() const {
    return timers_.untilNext(clock_.Steady());
}

void AsioEventLoop::DoEvents() {
    pumpNow();
    lookedAt_ = clock_.Steady();
    runQueue();
    fireTimers();
}

void AsioEventLoop::DoEventsNowAndThen() {
    if (untilDue(lookedAt_) == milliseconds{0}) DoEvents();
}

milliseconds AsioEventLoop::untilDue(const Moment& taken) const {
    if (!taken) return milliseconds{0};
    return std::max(betweenLooks - (clock_.Steady() - *taken), milliseconds{0});
}

void AsioEventLoop::pumpNow() {
    if (!pump_) return;
    pumpedAt_ = clock_.Steady();
    guarded(pump_);
}

// True when something happened. Most of the time nothing is pending, and the sockets are asked once. Else they are
// asked at the end of the first round, and what they tell happens in the second. More rounds would never end under a
// peer that sends as fast as it is read.
bool AsioEventLoop::runQueue() {
    bool happened = true;  // also when the handler throws
    guarded([&] { happened = context_->poll_one() != 0; });
    if (!happened) return false;
    runRound();
    runRound();
    return true;
}

// Runs what stands in the context's queue now, and nothing that is added meanwhile.
void AsioEventLoop::runRound() {
    bool atEnd = false;
    asio::post(*context_, [&atEnd] { atEnd = true; });
    while (!atEnd)
        guarded([this] { context_->poll_one(); });
}

bool AsioEventLoop::fireTimers() {
    const auto now = clock_.Steady();
    bool fired = false;
    while (const auto tick = timers_.takeDue(now)) {
        fired = true;
        guarded(*tick);
    }
    if (fired) timersChanged();
    return fired;
}

template <class Body>
void AsioEventLoop::guarded(Body&& body) {
    try {
        body();
    } catch (...) {
        tellStandardError(currentError());
    }
}

void AsioEventLoop::timersChanged() {
    if (onTimersChanged_) onTimersChanged_();
}

}  // namespace vell
