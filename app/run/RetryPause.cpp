// SPDX-License-Identifier: MIT
#include "app/run/RetryPause.h"

#include <algorithm>
#include <chrono>

#include "app/Session.h"
#include "base/text.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"

namespace vell {

void retryPause(const Session& session, EventLoop& loop, const Clock& clock) {
    using std::chrono::milliseconds;
    constexpr milliseconds slice{50};
    const SteadyTime end = clock.Steady() + milliseconds{CInt32(session.Run.Setup.RetryDelay * 1000)};
    for (milliseconds left = end - clock.Steady(); left.count() > 0 && !session.gStopRequested;
         left = end - clock.Steady())
        loop.WaitForEvents(static_cast<int>(std::min(left, slice).count()));
}

}  // namespace vell
