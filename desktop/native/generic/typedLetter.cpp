// SPDX-License-Identifier: MIT
#include "desktop/native/typedLetter.h"

#include <wx/event.h>

namespace vell {

wxUniChar typedLetter(const wxKeyEvent& event) {
    return event.GetUnicodeKey();
}

}  // namespace vell
