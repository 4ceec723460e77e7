// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "base/Date.h"

namespace vell {

// What the user does with the main window, and what the program asks of its user. Rows are counted from 0 in the list
// as the browser holds it.
struct WindowEvents {
    // Of the menu, the toolbar and the buttons.
    std::function<void(int id)> CommandChosen;
    std::function<bool(int id)> IsEnabled;

    std::function<void(const Date& day)> DayChosen;
    std::function<void(std::size_t row)> RowDoubleClicked;
    std::function<void(std::size_t row)> RowEntered;

    std::function<void(bool onlyToday)> RangeChosen;
    std::function<void(const Date& from)> FromDateChanged;
    std::function<void(const Date& to)> ToDateChanged;
    std::function<void(const std::string& text)> DayMistyped;

    // A run cannot go on without other settings; returns when the user has been through them.
    std::function<void()> SetupWanted;
    // The window is to go. The user may be told to close a dialog first, the system may not.
    std::function<void(bool mayBeRefused)> Closing;
};

}  // namespace vell
