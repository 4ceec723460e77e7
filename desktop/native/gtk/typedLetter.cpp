// SPDX-License-Identifier: MIT
#include "desktop/native/typedLetter.h"

#include <gdk/gdk.h>
#include <wx/event.h>

namespace vell {

wxUniChar typedLetter(const wxKeyEvent& event) {
    return gdk_keyval_to_unicode(event.GetRawKeyCode());
}

}  // namespace vell
