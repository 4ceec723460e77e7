// SPDX-License-Identifier: MIT
#include "ui/dialogs/frmAutoView.h"

#include <algorithm>

#include "base/ScopedFlag.h"
#include "config/Settings.h"
#include "ui/ClippingOpening.h"
#include "ui/ClippingsBrowser.h"

namespace vell {

frmAutoView::frmAutoView(ClippingsBrowser& browser, ClippingOpening& opening, EventLoop& loop, const Settings& settings)
    : browser_(browser), opening_(opening), loop_(loop), settings_(settings) {}

frmAutoView::~frmAutoView() {
    if (isRunning()) loop_.KillTimer(timer_);
}

void frmAutoView::start(std::size_t row) {
    if (isOpening_) return;
    slides_.clear();
    for (const ClippingRow& one : browser_.rows())
        slides_.push_back({one.path(), one.File->Description});
    next_ = row;
    setTimer();
    openNext();
}

void frmAutoView::stop() {
    if (!isRunning()) return;
    loop_.KillTimer(timer_);
    timer_ = 0;
    tellChange();
}

int frmAutoView::delay() const {
    const int wanted = delay_ == 0 ? settings_.AutoPlayDelay : delay_;
    return std::clamp(wanted, shortestDelay, longestDelay);
}

void frmAutoView::setDelay(int seconds) {
    if (seconds == delay()) return;
    delay_ = seconds;
    if (isRunning()) setTimer();
}

std::string frmAutoView::position() const {
    if (next_ == 0 || next_ > slides_.size()) return {};
    return std::to_string(next_) + "/" + std::to_string(slides_.size()) + " " + slides_[next_ - 1].Title;
}

void frmAutoView::setTimer() {
    constexpr int millisecondsPerSecond = 1000;
    if (isRunning()) loop_.KillTimer(timer_);
    timer_ = loop_.SetTimer(delay() * millisecondsPerSecond, [this] { openNext(); });
}

void frmAutoView::openNext() {
    // Opening lets events happen, and a message that it failed waits for the user: ticks that come meanwhile are lost.
    if (isOpening_) return;
    if (next_ >= slides_.size()) {
        stop();
        return;
    }
    const ScopedFlag opening(isOpening_);
    const std::string path = slides_[next_++].Path;
    tellChange();
    if (opening_.open(path) == ClippingOpening::Outcome::Failed || next_ >= slides_.size()) stop();
}

void frmAutoView::tellChange() const {
    if (changed_) changed_();
}

}  // namespace vell
