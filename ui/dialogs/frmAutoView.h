// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/EventLoop.h"

namespace vell {

class ClippingOpening;
class ClippingsBrowser;
struct Settings;

// The slide show: opens the clippings of the list one after another, each after a pause that the user can change while
// it goes on. It ends behind the last one, and at one that cannot be opened.
class frmAutoView {
  public:
    static constexpr int shortestDelay = 1;  // seconds
    static constexpr int longestDelay = 49;

    frmAutoView(ClippingsBrowser& browser, ClippingOpening& opening, EventLoop& loop, const Settings& settings);
    ~frmAutoView();
    frmAutoView(const frmAutoView&) = delete;
    frmAutoView& operator=(const frmAutoView&) = delete;

    // Told of every step.
    void setOnChanged(std::function<void()> changed) { changed_ = std::move(changed); }

    // Opens the row's clipping and goes on from there.
    void start(std::size_t row);
    void stop();
    [[nodiscard]] bool isRunning() const { return timer_ != 0; }

    // The setting's delay, unless the user has chosen another one.
    [[nodiscard]] int delay() const;
    void setDelay(int seconds);

    // Where it is: "3/20 " and the title.
    [[nodiscard]] std::string position() const;

  private:
    void openNext();
    void setTimer();
    void tellChange() const;

    struct Slide {
        std::string Path;
        std::string Title;
    };

    ClippingsBrowser& browser_;
    ClippingOpening& opening_;
    EventLoop& loop_;
    const Settings& settings_;
    std::function<void()> changed_;
    std::vector<Slide> slides_;
    std::size_t next_ = 0;
    int delay_ = 0;
    bool isOpening_ = false;
    EventLoop::TimerId timer_ = 0;
};

}  // namespace vell
