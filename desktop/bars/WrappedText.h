// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <wx/stattext.h>

namespace vell {

// A text that breaks its lines where its room ends, and takes the height that this needs. A word that is longer than
// the room is cut.
class WrappedText : public wxStaticText {
  public:
    // `heightChanged` is to lay out whatever the text stands in.
    WrappedText(wxWindow* parent, std::function<void()> heightChanged);

    void show(const wxString& text);

  private:
    void wrap();

    std::function<void()> heightChanged_;
    wxString text_;
    int width_ = 0;  // for which the lines were broken
};

}  // namespace vell
