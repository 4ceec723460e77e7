// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
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

    // A clipping that it shows.
    struct Slide {
        std::string Path;
        std::string Title;
        std::string Newspaper;
    };

    frmAutoView(ClippingsBrowser& browser, ClippingOpening& opening, EventLoop& loop, const Settings& settings);
    ~frmAutoView();
    frmAutoView(const frmAutoView&) = delete;
    frmAutoView& operator=(const frmAutoView&) = delete;

    // Told of every step.
    void setOnChanged(std::function<void()> changed) { changed_ = std::move(changed); }

    // Opens the row's clipping and goes on from there. A row at which it stopped has been seen: it goes on behind it,
    // behind the last one with the first.
    void start(std::size_t row);
    // Stays where it is.
    void stop();
    [[nodiscard]] bool isRunning() const { return timer_ != 0; }

    // The clipping before or behind the one that is shown, now. A show that goes on then goes on from there.
    void showPrevious();
    void showNext();
    [[nodiscard]] bool hasPrevious() const { return current_ && *current_ > 0; }
    [[nodiscard]] bool hasNext() const { return current_ && *current_ + 1 < slides_.size(); }

    // The setting's delay, unless the user has chosen another one since the setting was made.
    [[nodiscard]] int delay() const;
    void setDelay(int seconds);
    // The setting may have become another.
    void followSettings();

    // The clipping that was opened last, if any, its number counted from 1, and of how many.
    [[nodiscard]] const Slide* slide() const { return current_ ? &slides_.at(*current_) : nullptr; }
    [[nodiscard]] std::size_t number() const { return current_ ? *current_ + 1 : 0; }
    [[nodiscard]] std::size_t count() const { return slides_.size(); }

  private:
    void takeList();
    void show(std::size_t slide);
    void setTimer();
    void tellChange() const;

    struct ChosenDelay {
        int Seconds;
        int Setting;  // what the setting was then
    };

    ClippingsBrowser& browser_;
    ClippingOpening& opening_;
    EventLoop& loop_;
    const Settings& settings_;
    std::function<void()> changed_;
    std::vector<Slide> slides_;
    std::optional<std::size_t> current_;
    std::optional<ChosenDelay> chosenDelay_;
    int timerDelay_ = 0;
    bool isOpening_ = false;
    EventLoop::TimerId timer_ = 0;
};

}  // namespace vell
