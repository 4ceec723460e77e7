// SPDX-License-Identifier: MIT
#include "desktop/dialogs/ScheduleDialog.h"

#include <algorithm>
#include <utility>

#include <wx/button.h>
#include <wx/dataview.h>
#include <wx/sizer.h>
#include <wx/textdlg.h>

#include "desktop/native/accessibleName.h"
#include "desktop/screenText.h"

namespace vell {

ScheduleDialog::ScheduleDialog(wxWindow* parent, frmSchedule rules)
    : wxDialog(parent, wxID_ANY, "Schedule", wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      rules_(std::move(rules)) {
    rules_.Form_Load();
    addGrid();
    auto* content = new wxBoxSizer(wxHORIZONTAL);
    content->Add(grdSchedule_, wxSizerFlags(1).Expand());
    content->Add(buttons(), wxSizerFlags().Border(wxLEFT));
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(content, wxSizerFlags(1).Expand().Border());
    sizer->Add(CreateStdDialogButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Expand().Border());
    SetSizerAndFit(sizer);
    CentreOnParent();
    Bind(
        wxEVT_BUTTON,
        [this](wxCommandEvent& /*event*/) {
            CallAfter([this] {
                if (rules_.cmdOk_Click()) AcceptAndClose();
            });
        },
        wxID_OK);
    show(0);
}

void ScheduleDialog::addGrid() {
    grdSchedule_ = new wxDataViewListCtrl(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(460, 260)), wxDV_SINGLE);
    setAccessibleName(*grdSchedule_, "Schedule");
    for (const std::string_view day : scheduleDays)
        grdSchedule_->AppendToggleColumn(shownLine(day), wxDATAVIEW_CELL_ACTIVATABLE, FromDIP(46), wxALIGN_CENTRE, 0);
    grdSchedule_->AppendTextColumn("Time", wxDATAVIEW_CELL_INERT, FromDIP(90), wxALIGN_LEFT, 0);
    grdSchedule_->Bind(wxEVT_DATAVIEW_ITEM_VALUE_CHANGED, &ScheduleDialog::onToggle, this);
    grdSchedule_->Bind(wxEVT_LEFT_UP, &ScheduleDialog::onClick, this);
}

wxSizer* ScheduleDialog::buttons() {
    auto* column = new wxBoxSizer(wxVERTICAL);
    const auto add = [&](const wxString& label, auto action) {
        auto* button = new wxButton(this, wxID_ANY, label);
        column->Add(button, wxSizerFlags().Expand().Border(wxBOTTOM));
        button->Bind(wxEVT_BUTTON, [this, action](wxCommandEvent& /*event*/) { CallAfter(action); });
    };
    add("&Add...", [this] {
        const std::size_t before = rules_.rows().size();
        rules_.cmdAddSchedule_Click(*this);
        show(rules_.rows().size() > before ? static_cast<int>(before) : grdSchedule_->GetSelectedRow());
    });
    add("&Edit...", [this] { edit(); });
    add("&Delete", [this] {
        const int row = grdSchedule_->GetSelectedRow();
        if (row == wxNOT_FOUND) return;
        rules_.cmdDelSchedule_Click(static_cast<std::size_t>(row));
        show(row);
    });
    return column;
}

// The next row takes the place of one that was deleted.
void ScheduleDialog::show(int selected) {
    grdSchedule_->DeleteAllItems();
    for (const ScheduleEntry& entry : rules_.rows()) {
        wxVector<wxVariant> cells;
        for (const bool active : entry.Days)
            cells.push_back(active);
        cells.push_back(shownLine(entry.Time));
        grdSchedule_->AppendItem(cells);
    }
    const int last = grdSchedule_->GetItemCount() - 1;
    if (last >= 0) grdSchedule_->SelectRow(static_cast<unsigned int>(std::clamp(selected, 0, last)));
}

void ScheduleDialog::edit() {
    const int row = grdSchedule_->GetSelectedRow();
    if (row == wxNOT_FOUND) return;
    rules_.cmdEdit_Click(*this, static_cast<std::size_t>(row));
    show(row);
}

void ScheduleDialog::onToggle(wxDataViewEvent& event) {
    const int row = grdSchedule_->ItemToRow(event.GetItem());
    if (row != wxNOT_FOUND)
        rules_.grdSchedule_Click(*this, static_cast<std::size_t>(row), static_cast<std::size_t>(event.GetColumn()));
}

// A click on a time changes it. On GTK the event's own place is counted from below the header, HitTest from above it.
void ScheduleDialog::onClick(wxMouseEvent& event) {
    event.Skip();
    wxDataViewItem item;
    wxDataViewColumn* column = nullptr;
    grdSchedule_->HitTest(grdSchedule_->ScreenToClient(wxGetMousePosition()), item, column);
    if (item.IsOk() && column && column->GetModelColumn() == frmSchedule::timeColumn) CallAfter([this] { edit(); });
}

std::string ScheduleDialog::InputBox(std::string_view prompt, std::string_view title, std::string_view offered) {
    wxTextEntryDialog box(this, shownText(prompt), shownLine(title), shownLine(offered));
    return box.ShowModal() == wxID_OK ? typedText(box.GetValue()) : std::string();
}

void ScheduleDialog::Beep() {
    wxBell();
}

}  // namespace vell
