// SPDX-License-Identifier: MIT
#include "desktop/WindowLoop.h"

#include <algorithm>
#include <limits>

#include <wx/evtloop.h>

#include "platform/asio/AsioEventLoop.h"

namespace vell {

namespace {

constexpr std::chrono::milliseconds pulse{50};

void handleWindowMessages() {
    // YieldFor, unlike wxYield, may be called from inside what it is handling, to any depth.
    if (wxEventLoopBase* active = wxEventLoopBase::GetActive()) active->YieldFor(wxEVT_CATEGORY_ALL);
}

}  // namespace

WindowLoop::WindowLoop(AsioEventLoop& loop) : loop_(loop) {
    loop_.setPump(handleWindowMessages);
    loop_.setOnTimersChanged([this] { arm(); });
    Register();
    arm();
}

WindowLoop::~WindowLoop() {
    Unregister();
    loop_.setPump(nullptr);
    loop_.setOnTimersChanged(nullptr);
}

// What happens may open a modal dialog, and not come back before that is closed.
void WindowLoop::Notify() {
    StartOnce(static_cast<int>(pulse.count()));
    loop_.DoEvents();
    arm();
}

int WindowLoop::Enter(wxDialog* /*dialog*/) {
    ++modalDialogs_;
    arm();
    return wxID_NONE;
}

void WindowLoop::Exit(wxDialog* /*dialog*/) {
    --modalDialogs_;
    arm();
}

void WindowLoop::arm() {
    auto next = loop_.untilNextTimer();
    if (modalDialogs_ > 0) next = std::min(next.value_or(pulse), pulse);
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
