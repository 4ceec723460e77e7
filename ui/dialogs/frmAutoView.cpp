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
    const std::string seen = current_ ? slides_[*current_].Path : std::string();
    takeList();
    if (row >= slides_.size()) return;
    setTimer();
    show(slides_[row].Path == seen ? (row + 1) % slides_.size() : row);
}

// The list may become another one while the show goes on.
void frmAutoView::takeList() {
    current_.reset();
    slides_.clear();
    for (const ClippingRow& row : browser_.rows())
        slides_.push_back({row.path(), row.File->Description, row.File->NewspaperName});
}

void frmAutoView::stop() {
    if (!isRunning()) return;
    loop_.KillTimer(timer_);
    timer_ = 0;
    tellChange();
}

void frmAutoView::showPrevious() {
    if (isOpening_ || !hasPrevious()) return;
    if (isRunning()) setTimer();
    show(*current_ - 1);
}

void frmAutoView::showNext() {
    // Opening lets events happen, and a message that it failed waits for the user: ticks that come meanwhile are lost.
    if (isOpening_ || !hasNext()) return;
    if (isRunning()) setTimer();
    show(*current_ + 1);
}

int frmAutoView::delay() const {
    const bool isChosen = chosenDelay_ && chosenDelay_->Setting == settings_.AutoPlayDelay;
    return std::clamp<int>(isChosen ? chosenDelay_->Seconds : settings_.AutoPlayDelay, shortestDelay, longestDelay);
}

void frmAutoView::setDelay(int seconds) {
    if (seconds == delay()) return;
    chosenDelay_ = {seconds, settings_.AutoPlayDelay};
    followSettings();
}

void frmAutoView::followSettings() {
    if (isRunning() && timerDelay_ != delay()) setTimer();
    tellChange();
}

void frmAutoView::setTimer() {
    constexpr int millisecondsPerSecond = 1000;
    if (isRunning()) loop_.KillTimer(timer_);
    timerDelay_ = delay();
    timer_ = loop_.SetTimer(timerDelay_ * millisecondsPerSecond, [this] { showNext(); });
}

void frmAutoView::show(std::size_t slide) {
    const ScopedFlag opening(isOpening_);
    current_ = slide;
    const std::string path = slides_[slide].Path;
    tellChange();
    if (opening_.open(path) == ClippingOpening::Outcome::Failed || !hasNext()) stop();
}

void frmAutoView::tellChange() const {
    if (changed_) changed_();
}

}  // namespace vell
