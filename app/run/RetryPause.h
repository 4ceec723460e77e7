// SPDX-License-Identifier: MIT
#pragma once

namespace vell {

class Clock;
class EventLoop;
struct Session;

// The pause before another attempt, RetryDelay seconds long. Events happen meanwhile, so that Stop is heard at once.
void retryPause(const Session& session, EventLoop& loop, const Clock& clock);

}  // namespace vell
