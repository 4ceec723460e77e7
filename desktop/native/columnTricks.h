// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

class wxDataViewColumn;
class wxDataViewCtrl;
class wxSize;

namespace vell {

// Tells whenever the column gets another width, from the user or the program. Not to be answered with widths at once:
// the list is being laid out.
void whenResized(wxDataViewColumn& column, std::function<void()> tell);

// Tells when the column's header is clicked, but not when it is drawn to another place.
void whenHeaderClicked(wxDataViewColumn& column, std::function<void()> tell);
// The same for the right button.
void whenHeaderRightClicked(wxDataViewColumn& column, std::function<void()> tell);

// The column's header never takes the keyboard, for which it has no use.
void keepKeyboardOut(wxDataViewColumn& column);

// Puts these columns into this order, from the left; all others stand behind them.
void putInOrder(wxDataViewCtrl& list, const std::vector<wxDataViewColumn*>& columns);

// What a list has for its columns, in pixels.
[[nodiscard]] int roomForColumns(const wxDataViewCtrl& list);

// The width that the program or the user gave the column, also before it is laid out.
[[nodiscard]] int givenWidth(const wxDataViewColumn& column);

// In a column of pictures with text: gives the room to the picture. The text is there for a screen reader only.
void showPictureOnly(wxDataViewColumn& column, const wxSize& picture);

}  // namespace vell
