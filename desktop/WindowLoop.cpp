// SPDX-License-Identifier: MIT
#include "desktop/WindowLoop.h"

#include <algorithm>
#include <limits>

#include <wx/evtloop.h>

#include "platform/asio/AsioEventLoop.h"

namespace vell {

namespace {

void handleWindowMessages() {
    // YieldFor, unlike wxYield, may be called from inside what it is handling, to any depth.
    if (wxEventLoopBase* active = wxEventLoopBase::GetActive()) active->YieldFor(wxEVT_CATEGORY_ALL);
}

}  // namespace

WindowLoop::WindowLoop(AsioEventLoop& loop) : loop_(loop) {
    loop_.setPump(handleWindowMessages);
    loop_.setOnTimersChanged([this] { arm(); });
    arm();
}

WindowLoop::~WindowLoop() {
    loop_.setPump(nullptr);
    loop_.setOnTimersChanged(nullptr);
}

void WindowLoop::Notify() {
    loop_.DoEvents();
    arm();
}

void WindowLoop::arm() {
    const auto next = loop_.untilNextTimer();
    if (!next) {
        Stop();
        return;
    }
    // A timer that is due is fired by whoever is in DoEvents now, or by this one soon.
    constexpr std::chrono::milliseconds soonest{1};
    constexpr std::chrono::milliseconds latest{std::numeric_limits<int>::max()};
    StartOnce(static_cast<int>(std::clamp(*next, soonest, latest).count()));
}

}  // namespace vell
