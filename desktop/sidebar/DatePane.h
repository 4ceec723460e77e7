// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <wx/object.h>
#include <wx/panel.h>

#include "base/Date.h"
#include "desktop/sidebar/DaysModel.h"
#include "ui/days/DayTypeAhead.h"

class wxDataViewCtrl;
class wxDataViewItem;
class wxKeyEvent;

namespace vell {

// The list of the days on disk. One of them is shown; several can be selected for what is done to whole days.
class DatePane : public wxPanel {
  public:
    struct Events {
        std::function<void(const Date& day)> Chosen;
        std::function<void()> DeleteWanted;
    };
    DatePane(wxWindow* parent, const Clock& clock, Events events);

    void show(const std::vector<DayLine>& days, const std::optional<Date>& chosen);
    void showText(const DayLine& day) { model_->setText(day); }
    // The newest first.
    [[nodiscard]] std::vector<Date> selected() const;

  private:
    void onKey(wxKeyEvent& event);
    [[nodiscard]] bool type(const wxKeyEvent& event);
    void selectionChanged();
    // Selects these, with the keyboard at `chosen`.
    void select(const std::vector<Date>& days, const std::optional<Date>& chosen);
    [[nodiscard]] wxDataViewItem itemOf(std::size_t row) const;
    [[nodiscard]] std::optional<std::size_t> currentRow() const;

    Events events_;
    wxObjectDataPtr<DaysModel> model_;  // the control and this pane share it
    wxDataViewCtrl* cmbDate_;
    DayTypeAhead typeAhead_;
    std::optional<Date> shown_;
};

}  // namespace vell
