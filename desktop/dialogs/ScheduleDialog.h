// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string>

#include <wx/dialog.h>

#include "config/ScheduleView.h"
#include "config/frmSchedule.h"

class wxButton;
class wxDataViewEvent;
class wxDataViewListCtrl;
class wxMouseEvent;
class wxSizer;

namespace vell {

// The weekly schedule: a row per time, a box per day.
class ScheduleDialog : public wxDialog, private ScheduleView {
  public:
    ScheduleDialog(wxWindow* parent, frmSchedule rules);

  private:
    std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                        std::string_view offered) override;
    void Beep() override;

    void addGrid();
    [[nodiscard]] wxSizer* buttons();
    void show(int selected);
    [[nodiscard]] std::optional<std::size_t> chosen() const;
    void edit();
    void onToggle(wxDataViewEvent& event);
    void onClick(wxMouseEvent& event);

    frmSchedule rules_;
    wxDataViewListCtrl* grdSchedule_ = nullptr;
    std::array<wxButton*, 2> ofRows_{};  // which need one
};

}  // namespace vell
