// SPDX-License-Identifier: MIT
#include "desktop/dialogs/ScheduleDialog.h"

#include <algorithm>
#include <utility>

#include <wx/button.h>
#include <wx/dataview.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>
#include <wx/textdlg.h>
#include <wx/translation.h>

#include "desktop/dialogs/buttonTexts.h"
#include "desktop/dialogs/finishDialog.h"
#include "desktop/native/accessibleName.h"
#include "desktop/screenText.h"

namespace vell {

ScheduleDialog::ScheduleDialog(wxWindow* parent, frmSchedule rules)
    : wxDialog(parent, wxID_ANY, _("Schedule"), wxDefaultPosition, wxDefaultSize,
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
    finishDialog(*this, sizer, *grdSchedule_);
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
    setAccessibleName(*grdSchedule_, _("Schedule"));
    for (const std::string_view day : scheduleDays)
        grdSchedule_->AppendToggleColumn(wxGetTranslation(shownLine(day)), wxDATAVIEW_CELL_ACTIVATABLE, FromDIP(46),
                                         wxALIGN_CENTRE, 0);
    grdSchedule_->AppendTextColumn(_("Time"), wxDATAVIEW_CELL_INERT, FromDIP(90), wxALIGN_LEFT, 0);
    grdSchedule_->Bind(wxEVT_DATAVIEW_ITEM_VALUE_CHANGED, &ScheduleDialog::onToggle, this);
    grdSchedule_->Bind(wxEVT_LEFT_UP, &ScheduleDialog::onClick, this);
}

wxSizer* ScheduleDialog::buttons() {
    auto* column = new wxBoxSizer(wxVERTICAL);
    const auto add = [&](const wxString& label, auto action) {
        auto* button = new wxButton(this, wxID_ANY, label);
        column->Add(button, wxSizerFlags().Expand().Border(wxBOTTOM));
        button->Bind(wxEVT_BUTTON, [this, action](wxCommandEvent& /*event*/) { CallAfter(action); });
        return button;
    };
    add(_("&Add..."), [this] {
        const std::size_t before = rules_.rows().size();
        rules_.cmdAddSchedule_Click(*this);
        show(rules_.rows().size() > before ? static_cast<int>(before) : grdSchedule_->GetSelectedRow());
    });
    ofRows_ = {add(_("&Edit..."), [this] { edit(); }), add(_("&Delete"), [this] {
                   const int row = grdSchedule_->GetSelectedRow();
                   rules_.cmdDelSchedule_Click(chosen());
                   show(row);
               })};
    return column;
}

// The next row takes the place of one that was deleted. wxNOT_FOUND selects none.
void ScheduleDialog::show(int selected) {
    grdSchedule_->DeleteAllItems();
    for (const ScheduleEntry& entry : rules_.rows()) {
        wxVector<wxVariant> cells;
        for (const bool active : entry.Days)
            cells.push_back(active);
        cells.push_back(shownLine(entry.Time));
        grdSchedule_->AppendItem(cells);
    }
    for (wxButton* button : ofRows_)
        button->Enable(!rules_.rows().empty());
    const int last = grdSchedule_->GetItemCount() - 1;
    if (last >= 0 && selected != wxNOT_FOUND)
        grdSchedule_->SelectRow(static_cast<unsigned int>(std::clamp(selected, 0, last)));
}

std::optional<std::size_t> ScheduleDialog::chosen() const {
    const int row = grdSchedule_->GetSelectedRow();
    return row == wxNOT_FOUND ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

void ScheduleDialog::edit() {
    const int row = grdSchedule_->GetSelectedRow();
    rules_.cmdEdit_Click(*this, chosen());
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

std::optional<std::string> ScheduleDialog::InputBox(std::string_view prompt, std::string_view title,
                                                    std::string_view offered) {
    wxTextEntryDialog box(this, shownText(prompt), shownLine(title), shownLine(offered));
    nameButtons(box);
    for (wxWindow* child : box.GetChildren())
        if (dynamic_cast<wxTextCtrl*>(child) != nullptr) setAccessibleName(*child, shownLine(title));
    return box.ShowModal() == wxID_OK ? std::optional(typedText(box.GetValue())) : std::nullopt;
}

void ScheduleDialog::Beep() {
    wxBell();
}

}  // namespace vell
