// SPDX-License-Identifier: MIT
#include "desktop/native/columnTricks.h"

#include <wx/dataview.h>

namespace vell {

// The toolkit tells nobody.
void whenResized(wxDataViewColumn& /*column*/, std::function<void()> /*tell*/) {}

int roomForColumns(const wxDataViewCtrl& list) {
    return list.GetClientSize().GetWidth();
}

int givenWidth(const wxDataViewColumn& column) {
    return column.GetWidth();
}

// The blanks before the text and the width of the column do it already.
void showPictureOnly(wxDataViewColumn& /*column*/, const wxSize& /*picture*/) {}

}  // namespace vell
