// SPDX-License-Identifier: MIT
#include "desktop/dialogs/FilterDialog.h"

#include <utility>

#include <wx/button.h>
#include <wx/checklst.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "desktop/native/accessibleName.h"
#include "desktop/screenText.h"

namespace vell {

namespace {

std::vector<std::string> checkedOf(const wxCheckListBox& list, const std::vector<std::string>& names) {
    wxArrayInt checked;
    list.GetCheckedItems(checked);
    std::vector<std::string> chosen;
    for (const int item : checked)
        chosen.push_back(names.at(static_cast<std::size_t>(item)));
    return chosen;
}

void uncheck(wxCheckListBox& list) {
    for (unsigned int item = 0; item < list.GetCount(); ++item)
        list.Check(item, false);
}

}  // namespace

FilterDialog::FilterDialog(wxWindow* parent, frmFilter rules)
    : wxDialog(parent, wxID_ANY, "Filter", wxDefaultPosition, wxDefaultSize, wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      rules_(std::move(rules)) {
    auto* lists = new wxBoxSizer(wxHORIZONTAL);
    categories_ = listBox(*lists, "&Categories", rules_.lstCategories(),
                          [this](const std::string& name) { return rules_.isCategoryChosen(name); });
    types_ = listBox(*lists, "&Types", rules_.lstTypes(),
                     [this](const std::string& name) { return rules_.isTypeChosen(name); });
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->Add(new wxButton(this, wxID_CLEAR, "C&lear all"), wxSizerFlags().CentreVertical());
    buttons->AddStretchSpacer();
    buttons->Add(CreateStdDialogButtonSizer(wxOK | wxCANCEL), wxSizerFlags().CentreVertical());
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    auto* hint = new wxStaticText(this, wxID_ANY, "Tick what you want to see. Nothing ticked shows everything.");
    sizer->Add(hint, wxSizerFlags().Border());
    sizer->Add(lists, wxSizerFlags(1).Expand());
    sizer->Add(buttons, wxSizerFlags().Expand().Border());
    SetSizerAndFit(sizer);
    CentreOnParent();
    Bind(
        wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) { ok(); }, wxID_OK);
    Bind(
        wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) { clear(); }, wxID_CLEAR);
}

template <class IsChosen>
wxCheckListBox* FilterDialog::listBox(wxSizer& sizer, const wxString& label, const std::vector<std::string>& names,
                                      IsChosen isChosen) {
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(new wxStaticText(this, wxID_ANY, label), wxSizerFlags().Border(wxBOTTOM));
    auto* list = new wxCheckListBox(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(220, 240)));
    setAccessibleName(*list, wxControl::RemoveMnemonics(label));
    for (const std::string& name : names)
        list->Check(static_cast<unsigned int>(list->Append(shownLine(name))), isChosen(name));
    column->Add(list, wxSizerFlags(1).Expand());
    sizer.Add(column, wxSizerFlags(1).Expand().Border());
    return list;
}

void FilterDialog::ok() {
    rules_.cmdOk_Click({checkedOf(*categories_, rules_.lstCategories()), checkedOf(*types_, rules_.lstTypes())});
    AcceptAndClose();
}

void FilterDialog::clear() {
    uncheck(*categories_);
    uncheck(*types_);
}

}  // namespace vell
