// SPDX-License-Identifier: MIT
#include "desktop/native/columnTricks.h"

#include <utility>

#include <wx/dataview.h>

namespace vell {

namespace {

void onHeader(wxDataViewColumn& column, const wxEventTypeTag<wxDataViewEvent>& kind, std::function<void()> tell) {
    column.GetOwner()->Bind(kind, [&column, tell = std::move(tell)](wxDataViewEvent& event) {
        if (event.GetDataViewColumn() == &column)
            tell();
        else
            event.Skip();
    });
}

}  // namespace

// The toolkit tells nobody.
void whenResized(wxDataViewColumn& /*column*/, std::function<void()> /*tell*/) {}

void whenHeaderClicked(wxDataViewColumn& column, std::function<void()> tell) {
    onHeader(column, wxEVT_DATAVIEW_COLUMN_HEADER_CLICK, std::move(tell));
}

void whenHeaderRightClicked(wxDataViewColumn& column, std::function<void()> tell) {
    onHeader(column, wxEVT_DATAVIEW_COLUMN_HEADER_RIGHT_CLICK, std::move(tell));
}

// It never does.
void keepKeyboardOut(wxDataViewColumn& /*column*/) {}

// The toolkit lets the user move them, the program only makes them anew.
void putInOrder(wxDataViewCtrl& /*list*/, const std::vector<wxDataViewColumn*>& /*columns*/) {}

int roomForColumns(const wxDataViewCtrl& list) {
    return list.GetClientSize().GetWidth();
}

int givenWidth(const wxDataViewColumn& column) {
    return column.GetWidth();
}

// The blanks before the text and the width of the column do it already.
void showPictureOnly(wxDataViewColumn& /*column*/, const wxSize& /*picture*/) {}

}  // namespace vell
