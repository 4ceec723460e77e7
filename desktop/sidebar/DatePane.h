// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <wx/panel.h>

#include "base/Date.h"

class wxChoice;

namespace vell {

// The drop-down list of the days on disk.
class DatePane : public wxPanel {
  public:
    DatePane(wxWindow* parent, std::function<void(const Date& day)> chosen);

    void show(const std::vector<Date>& days, const std::optional<Date>& chosen);

  private:
    std::function<void(const Date&)> chosen_;
    std::vector<Date> days_;
    wxChoice* cmbDate_;
};

}  // namespace vell
