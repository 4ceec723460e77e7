// SPDX-License-Identifier: MIT
#pragma once

class wxDataViewColumn;
class wxSize;

namespace vell {

// From now on the column takes the room in its list that the others leave.
void stretchColumn(wxDataViewColumn& column);

// The width that the program or the user gave the column, also before it is laid out.
[[nodiscard]] int givenWidth(const wxDataViewColumn& column);

// In a column of pictures with text: gives the room to the picture. The text is there for a screen reader only.
void showPictureOnly(wxDataViewColumn& column, const wxSize& picture);

}  // namespace vell
