// SPDX-License-Identifier: MIT
#pragma once

#include "ui/BrowserView.h"

namespace vell {

// Shows the busy cursor for as long as it lives.
class BusyMoment {
  public:
    explicit BusyMoment(BrowserView& view) : view_(view) { view_.showBusy(true); }
    ~BusyMoment() { view_.showBusy(false); }
    BusyMoment(const BusyMoment&) = delete;
    BusyMoment& operator=(const BusyMoment&) = delete;

  private:
    BrowserView& view_;
};

}  // namespace vell
