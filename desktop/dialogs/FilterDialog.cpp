// SPDX-License-Identifier: MIT
#include "desktop/dialogs/FilterDialog.h"

#include <utility>

#include <wx/button.h>
#include <wx/checklst.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/translation.h>

#include "desktop/WxTranslations.h"
#include "desktop/dialogs/finishDialog.h"
#include "desktop/native/accessibleName.h"
#include "desktop/screenText.h"

namespace vell {

FilterDialog::FilterDialog(wxWindow* parent, frmFilter rules)
    : wxDialog(parent, wxID_ANY, _("Filter"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      rules_(std::move(rules)) {
    auto* lists = new wxBoxSizer(wxHORIZONTAL);
    addList(*lists, _("&Newspapers"), rules_.lstNewspapers);
    addList(*lists, _("Cate&gories"), rules_.lstCategories);
    addList(*lists, _("&Types"), rules_.lstTypes);
    outcome_ = new wxStaticText(this, wxID_ANY, "");
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(lists, wxSizerFlags(1).Expand().Border());
    sizer->Add(outcome_, wxSizerFlags().Expand().DoubleBorder(wxLEFT | wxRIGHT | wxBOTTOM));
    sizer->Add(bottomRow(), wxSizerFlags().Expand().DoubleBorder(wxLEFT | wxRIGHT | wxBOTTOM));
    showTicks();
    finishDialog(*this, sizer, *lists_.front().Box);
    Bind(
        wxEVT_BUTTON,
        [this](wxCommandEvent& /*event*/) {
            rules_.cmdOk_Click();
            AcceptAndClose();
        },
        wxID_OK);
    Bind(
        wxEVT_BUTTON,
        [this](wxCommandEvent& /*event*/) {
            rules_.cmdClear_Click();
            showTicks();
        },
        wxID_CLEAR);
}

void FilterDialog::addList(wxSizer& sizer, const wxString& label, FilterChoice& choice) {
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(new wxStaticText(this, wxID_ANY, label), wxSizerFlags().Border(wxBOTTOM));
    auto* box = new wxCheckListBox(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(236, 260)));
    setAccessibleName(*box, wxControl::RemoveMnemonics(label));
    for (std::size_t entry = 0; entry < choice.size(); ++entry)
        box->Append(shownLine(choice.text(entry, WxTranslations())));
    column->Add(box, wxSizerFlags(1).Expand());
    sizer.Add(column, wxSizerFlags(1).Expand().Border());
    lists_.push_back({&choice, box});
    box->Bind(wxEVT_CHECKLISTBOX, [this, &choice, box](wxCommandEvent& event) {
        const auto entry = static_cast<unsigned int>(event.GetInt());
        choice.tick(entry, box->IsChecked(entry));
        showTicks();
    });
}

wxSizer* FilterDialog::bottomRow() {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(new wxButton(this, wxID_CLEAR, _("C&lear all")), wxSizerFlags().CentreVertical());
    row->AddStretchSpacer();
    row->Add(CreateStdDialogButtonSizer(wxOK | wxCANCEL), wxSizerFlags().CentreVertical());
    return row;
}

void FilterDialog::showTicks() {
    for (const auto& [choice, box] : lists_)
        for (unsigned int entry = 0; entry < box->GetCount(); ++entry)
            if (box->IsChecked(entry) != choice->isTicked(entry)) box->Check(entry, choice->isTicked(entry));
    const auto all = static_cast<unsigned int>(rules_.all());
    outcome_->SetLabelText(wxString::Format(wxPLURAL("Lists %zu of %u clipping.", "Lists %zu of %u clippings.", all),
                                            rules_.passing(), all));
}

}  // namespace vell
