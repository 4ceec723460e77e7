// SPDX-License-Identifier: MIT
#pragma once

class wxString;
class wxWindow;

namespace vell {

// What a screen reader calls a control that has no label of its own or none that the system connects with it.
void setAccessibleName(wxWindow& window, const wxString& name);
// What a screen reader adds to the name; empty for nothing.
void setAccessibleDescription(wxWindow& window, const wxString& description);

}  // namespace vell
