// SPDX-License-Identifier: MIT
#pragma once

class wxComboBox;

namespace vell {

// Lets Tab stop once at the box and its arrow, in the text: what is typed at a second stop would be lost. The keys for
// the list work in the text, too.
void makeOneStop(wxComboBox& box);

}  // namespace vell
