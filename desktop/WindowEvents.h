// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/Date.h"
#include "config/SettingsTable.h"
#include "ui/list/GridColumns.h"

namespace vell {

// What the user does with the main window, and what the program asks of its user. Rows are counted from 0 in the list
// as the browser holds it.
struct WindowEvents {
    // Of the menu, the toolbar and the buttons.
    std::function<void(int id)> CommandChosen;
    std::function<bool(int id)> IsEnabled;
    std::function<bool(int id)> IsOn;  // of a command that is a switch

    std::function<void(const Date& day)> DayChosen;
    std::function<void(std::size_t row)> RowDoubleClicked;
    std::function<void()> RowsEntered;   // those that are selected
    std::function<void()> RowSelected;   // or the current row is another clipping now
    std::function<bool()> BlankPressed;  // in the list; true when it has done something
    std::function<void(GridColumn column)> SortChosen;
    // The paths of these rows' files, the system's own, UTF-8.
    std::function<std::vector<std::string>(const std::vector<std::size_t>& rows)> FilesWanted;

    std::function<void(bool onlyToday)> RangeChosen;
    std::function<void(const Date& from)> FromDateChanged;
    std::function<void(const Date& to)> ToDateChanged;
    std::function<void(const std::string& text)> DayMistyped;

    // What the desktop's notice told is to be seen.
    std::function<void()> NoticeChosen;
    std::function<void()> AlertSeen;
    // In the alert.
    std::function<void(const std::string& address)> AddressChosen;

    // Setup is wanted for what a message has told.
    std::function<void(const std::optional<SettingField>& setting)> SettingInQuestion;
    // A run cannot go on without other settings; returns when the user has been through them.
    std::function<void()> SetupWanted;
    // The window is to go. The user may be told to close a dialog first, the system may not.
    std::function<void(bool mayBeRefused)> Closing;
};

}  // namespace vell
