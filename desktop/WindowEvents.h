// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "base/Date.h"

namespace vell {

// What the user does with the main window. Rows are counted from 0 in the list as the browser holds it.
class WindowEvents {
  public:
    virtual ~WindowEvents() = default;

    // Of the menu, the toolbar and the buttons.
    virtual void commandChosen(int id) = 0;
    [[nodiscard]] virtual bool isEnabled(int id) const = 0;

    virtual void dayChosen(const Date& day) = 0;
    virtual void rowDoubleClicked(std::size_t row) = 0;
    virtual void rowEntered(std::size_t row) = 0;

    virtual void rangeChosen(bool onlyToday) = 0;
    virtual void fromDateChanged(const Date& from) = 0;
    virtual void toDateChanged(const Date& to) = 0;

    // The window is to go. The user may be told to close a dialog first, the system may not.
    virtual void closing(bool mayBeRefused) = 0;
};

}  // namespace vell
