// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <wx/panel.h>

class wxChoice;

namespace vell {

// The drop-down list of the days on disk.
class DatePane : public wxPanel {
  public:
    DatePane(wxWindow* parent, std::function<void(const std::string& dayName)> chosen);

    void show(const std::vector<std::string>& dayNames, const std::string& chosen);

  private:
    std::function<void(const std::string&)> chosen_;
    std::vector<std::string> days_;
    wxChoice* cmbDate_;
};

}  // namespace vell
