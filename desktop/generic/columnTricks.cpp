// SPDX-License-Identifier: MIT
#include "desktop/columnTricks.h"

#include <algorithm>

#include <wx/dataview.h>

namespace vell {

// It gets what the list gains in width, and gives back what it loses.
void stretchColumn(wxDataViewColumn& column) {
    wxDataViewCtrl* list = column.GetOwner();
    list->Bind(wxEVT_SIZE, [list, &column, last = 0](wxSizeEvent& event) mutable {
        event.Skip();
        const int width = list->GetClientSize().GetWidth();
        if (last > 0) column.SetWidth(std::max(column.GetMinWidth(), column.GetWidth() + width - last));
        last = width;
    });
}

int givenWidth(const wxDataViewColumn& column) {
    return column.GetWidth();
}

// The blanks before the text and the width of the column do it already.
void showPictureOnly(wxDataViewColumn& /*column*/, const wxSize& /*picture*/) {}

}  // namespace vell
