// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

#include <wx/stopwatch.h>
#include <wx/timer.h>

namespace vell {

// Shows what changes thousands of times in a download twenty times a second, and the last of it in the end: a change
// at once when nothing was shown for so long, else with those that follow.
class PacedPainting : private wxTimer {
  public:
    explicit PacedPainting(std::function<void()> paint) : paint_(std::move(paint)) {}

    void changed();

  private:
    void Notify() override;

    std::function<void()> paint_;
    wxStopWatch sinceLast_;
    bool hasPainted_ = false;
};

}  // namespace vell
