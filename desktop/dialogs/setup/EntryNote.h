// SPDX-License-Identifier: MIT
#pragma once

#include <wx/stattext.h>

namespace vell {

// A few words beside a box that tell what is wrong with what stands in it. The place is kept free when there is nothing
// to tell, so that no button moves away from under the mouse.
class EntryNote : public wxStaticText {
  public:
    // Of the box `entry`, which a screen reader describes by these words.
    EntryNote(wxWindow* parent, wxWindow& entry);

    void show(const wxString& words);

  private:
    wxWindow& entry_;
};

}  // namespace vell
