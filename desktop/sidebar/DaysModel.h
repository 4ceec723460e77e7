// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <wx/dataview.h>

#include "ui/days/DayLine.h"

namespace vell {

// Gives the date list the days that are seen: there may be years of them.
class DaysModel : public wxDataViewVirtualListModel {
  public:
    // True when there are other days now, and not only other texts: the control has lost its selection and place then.
    bool setDays(const std::vector<DayLine>& days);
    void setText(const DayLine& day);

    [[nodiscard]] const std::vector<DayLine>& days() const { return days_; }
    [[nodiscard]] std::optional<std::size_t> rowOf(const Date& day) const;

    [[nodiscard]] unsigned int GetColumnCount() const override { return 1; }
    [[nodiscard]] wxString GetColumnType(unsigned int /*column*/) const override { return "string"; }
    void GetValueByRow(wxVariant& value, unsigned int row, unsigned int column) const override;
    bool SetValueByRow(const wxVariant& /*value*/, unsigned int /*row*/, unsigned int /*column*/) override {
        return false;
    }

  private:
    std::vector<DayLine> days_;
};

}  // namespace vell
