// SPDX-License-Identifier: MIT
#pragma once

class wxString;
class wxTextCtrl;

namespace vell {

// Adds text at the end of a control of several lines. What its user has selected and where they have scrolled to stays
// as it is, as far as the system can do that.
void appendQuietly(wxTextCtrl& control, const wxString& text);

}  // namespace vell
