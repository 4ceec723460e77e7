// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include <wx/panel.h>

class wxStaticText;

namespace vell {

// Says above the list that clippings are kept out of it, and offers to show all. There only when a filter is set.
class FilterBar : public wxPanel {
  public:
    explicit FilterBar(wxWindow* parent);

    void show(std::string_view text);

  private:
    wxStaticText* text_;
};

}  // namespace vell
