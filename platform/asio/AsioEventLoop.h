// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "base/errors.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"
#include "platform/asio/TimerQueue.h"

namespace asio {
class io_context;
}

namespace vell {

// The event loop on one Asio context. Timers and the length of waits go by the clock it is given; sockets are the
// context's. An error that a handler lets escape is told on standard error. Belongs to the thread that made it and
// outlives everything that works on its context.
class AsioEventLoop : public EventLoop {
  public:
    explicit AsioEventLoop(Clock& clock);
    ~AsioEventLoop() override;
    AsioEventLoop(const AsioEventLoop&) = delete;
    AsioEventLoop& operator=(const AsioEventLoop&) = delete;

    void DoEvents() override;
    void DoEventsNowAndThen() override;
    void WaitForEvents(int milliseconds) override;
    void Sleep(int milliseconds) override;
    [[nodiscard]] TimerId SetTimer(int periodMilliseconds, std::function<void()> tick) override;
    void KillTimer(TimerId timer) override;

    // Handles a window system's pending messages; called by every DoEvents, and by WaitForEvents now and then.
    void setPump(std::function<void()> pump);
    // For a window system that owns the outer loop: it calls DoEvents when untilNextTimer has gone by, and is told
    // whenever that has become another time.
    void setOnTimersChanged(std::function<void()> changed);
    [[nodiscard]] std::optional<std::chrono::milliseconds> untilNextTimer() const;

    // For the sockets alone. They must not use Asio's composed operations (async_write, a range for async_connect):
    // what such an operation posts between its steps is hidden from a handler that yields.
    [[nodiscard]] asio::io_context& context() { return *context_; }

  private:
    struct Anchor;
    using Moment = std::optional<SteadyTime>;

    // Until a look that was taken then is to be taken again; 0 when it is.
    [[nodiscard]] std::chrono::milliseconds untilDue(const Moment& taken) const;
    void pumpNow();
    bool runFor(std::chrono::milliseconds length);
    bool runQueue();
    void runRound();
    bool fireTimers();
    template <class Body>
    void guarded(Body&& body);
    void timersChanged();

    Clock& clock_;
    std::unique_ptr<asio::io_context> context_;
    std::unique_ptr<Anchor> anchor_;
    TimerQueue timers_;
    std::function<void()> pump_;
    Moment pumpedAt_;
    Moment lookedAt_;  // at the events
    std::function<void()> onTimersChanged_;
};

}  // namespace vell
