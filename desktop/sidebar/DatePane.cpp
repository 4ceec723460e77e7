// SPDX-License-Identifier: MIT
#include "desktop/sidebar/DatePane.h"

#include <algorithm>
#include <utility>

#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/translation.h>

#include "desktop/native/accessibleName.h"
#include "desktop/native/typedLetter.h"
#include "desktop/screenText.h"
#include "ui/days/dayToShow.h"

namespace vell {

namespace {
constexpr int leastHeight = 46;  // DIP, of two days
}

DatePane::DatePane(wxWindow* parent, const Clock& clock, Events events)
    : wxPanel(parent), events_(std::move(events)), model_(new DaysModel), typeAhead_(clock) {
    auto* label = new wxStaticText(this, wxID_ANY, _("Da&y:"));
    cmbDate_ = new wxDataViewCtrl(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(-1, leastHeight)),
                                  wxDV_MULTIPLE | wxDV_NO_HEADER);
    cmbDate_->AssociateModel(model_.get());
    auto* text = new wxDataViewTextRenderer;
    text->EnableEllipsize(wxELLIPSIZE_END);
    cmbDate_->AppendColumn(new wxDataViewColumn(_("Day"), text, 0, wxDVC_DEFAULT_WIDTH, wxALIGN_LEFT));
    setAccessibleName(*cmbDate_, _("Day"));
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(label, wxSizerFlags().Border(wxBOTTOM, FromDIP(3)));
    sizer->Add(cmbDate_, wxSizerFlags(1).Expand());
    SetSizer(sizer);
    // After the event, which the toolkit sends before all that belongs to a click has happened.
    cmbDate_->Bind(wxEVT_DATAVIEW_SELECTION_CHANGED,
                   [this](wxDataViewEvent& /*event*/) { CallAfter([this] { selectionChanged(); }); });
    cmbDate_->Bind(wxEVT_KEY_DOWN, &DatePane::onKey, this);
}

void DatePane::show(const std::vector<DayLine>& days, const std::optional<Date>& chosen) {
    const std::vector<Date> before = selected();
    const bool isOther = std::exchange(shown_, chosen) != chosen;
    // A run shows the days all the time; what the user has selected must not go for nothing.
    if (!model_->setDays(days) && !isOther) return;
    if (isOther || !chosen)
        select({}, chosen);
    else
        select(before, chosen);
}

void DatePane::select(const std::vector<Date>& days, const std::optional<Date>& chosen) {
    wxDataViewItemArray items;
    for (const Date& day : days)
        if (const auto row = model_->rowOf(day); row && day != chosen) items.push_back(itemOf(*row));
    const auto row = chosen ? model_->rowOf(*chosen) : std::nullopt;
    if (row) {
        const wxDataViewItem item = itemOf(*row);
        cmbDate_->UnselectAll();
        cmbDate_->SetCurrentItem(item);
        cmbDate_->EnsureVisible(item);
        items.push_back(item);
    }
    cmbDate_->SetSelections(items);
}

std::vector<Date> DatePane::selected() const {
    wxDataViewItemArray items;
    cmbDate_->GetSelections(items);
    std::vector<Date> days;
    days.reserve(items.size());
    for (const wxDataViewItem& item : items)
        days.push_back(model_->days().at(model_->GetRow(item)).Day);
    std::ranges::sort(days, std::greater{});
    return days;
}

wxDataViewItem DatePane::itemOf(std::size_t row) const {
    return model_->GetItem(static_cast<unsigned int>(row));
}

std::optional<std::size_t> DatePane::currentRow() const {
    const wxDataViewItem item = cmbDate_->GetCurrentItem();
    return item.IsOk() ? std::optional<std::size_t>(model_->GetRow(item)) : std::nullopt;
}

void DatePane::selectionChanged() {
    const std::vector<Date> days = selected();
    const auto row = currentRow();
    const auto day = dayToShow(days, row ? std::optional(model_->days().at(*row).Day) : std::nullopt, shown_);
    if (days.empty()) select({}, shown_);
    if (!day || day == shown_) return;
    shown_ = day;  // what is selected with it stays so
    events_.Chosen(*day);
}

void DatePane::onKey(wxKeyEvent& event) {
    const bool isDelete = event.GetKeyCode() == WXK_DELETE || event.GetKeyCode() == WXK_NUMPAD_DELETE;
    if (isDelete && !event.HasAnyModifiers())
        events_.DeleteWanted();
    else if (!type(event))
        event.Skip();
}

bool DatePane::type(const wxKeyEvent& event) {
    const wxUniChar letter = typedLetter(event);
    const std::string typed = letter < WXK_SPACE || event.HasModifiers() ? std::string() : typedText(wxString(letter));
    if (typed.empty() || (letter == ' ' && !typeAhead_.isUnderWay())) return false;
    const auto row = typeAhead_.type(typed.front(), model_->days(), currentRow());
    if (row) {
        select({}, model_->days()[*row].Day);
        selectionChanged();
    }
    return true;
}

}  // namespace vell
