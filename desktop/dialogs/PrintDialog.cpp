// SPDX-License-Identifier: MIT
#include "desktop/dialogs/PrintDialog.h"

#include <algorithm>
#include <utility>

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/translation.h>

#include "desktop/dialogs/finishDialog.h"
#include "desktop/native/accessibleName.h"
#include "desktop/screenText.h"

namespace vell {

namespace {

void fill(wxListBox& list, const std::vector<std::string>& categories, const frmPrint& rules) {
    const int selected = list.GetSelection();
    wxArrayString shown;
    for (const std::string& category : categories)
        shown.Add(shownLine(rules.text(category)));
    list.Set(shown);
    // The next entry takes the place of one that was moved away, so that the key can be pressed again.
    if (!shown.empty() && selected != wxNOT_FOUND)
        list.SetSelection(std::min(selected, static_cast<int>(shown.size()) - 1));
}

}  // namespace

PrintDialog::PrintDialog(wxWindow* parent, frmPrint rules, std::function<void(bool split)> splitChosen)
    : wxDialog(parent, wxID_ANY, _("Print by category"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      rules_(std::move(rules)),
      splitChosen_(std::move(splitChosen)) {
    auto* lists = new wxBoxSizer(wxHORIZONTAL);
    lstAllCategories_ = listBox(*lists, _("&Categories of the day"));
    lists->Add(moveButtons(), wxSizerFlags().CentreVertical().Border());
    lstPrintCategories_ = listBox(*lists, _("Categories to &print"));
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(lists, wxSizerFlags(1).Expand().Border());
    addSplitBox(*sizer);
    sizer->Add(bottomRow(), wxSizerFlags().Expand().Border());
    SetEscapeId(wxID_CLOSE);
    lstAllCategories_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent& /*event*/) { addOne(); });
    lstPrintCategories_->Bind(wxEVT_LISTBOX_DCLICK, [this](wxCommandEvent& /*event*/) { removeOne(); });
    show();
    if (lstAllCategories_->GetCount() > 0) lstAllCategories_->SetSelection(0);
    finishDialog(*this, sizer, *lstAllCategories_);
}

void PrintDialog::addSplitBox(wxSizer& sizer) {
    auto* box = new wxCheckBox(this, wxID_ANY, _("Spl&it combined categories: \"Politics,Economy\" counts for both"));
    box->SetValue(rules_.isSplit());
    box->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent& event) {
        rules_.splitCategories(event.IsChecked());
        splitChosen_(event.IsChecked());
        show();
    });
    outcome_ = new wxStaticText(this, wxID_ANY, "");
    sizer.Add(box, wxSizerFlags().Border(wxLEFT | wxRIGHT));
    sizer.Add(outcome_, wxSizerFlags().Expand().Border());
}

wxListBox* PrintDialog::listBox(wxSizer& sizer, const wxString& label) {
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(new wxStaticText(this, wxID_ANY, label), wxSizerFlags().Border(wxBOTTOM));
    auto* list = new wxListBox(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(220, 240)));
    setAccessibleName(*list, wxControl::RemoveMnemonics(label));
    column->Add(list, wxSizerFlags(1).Expand());
    sizer.Add(column, wxSizerFlags(1).Expand());
    return list;
}

wxSizer* PrintDialog::moveButtons() {
    auto* column = new wxBoxSizer(wxVERTICAL);
    const auto add = [&](const wxString& label, auto action) {
        auto* button = new wxButton(this, wxID_ANY, label);
        column->Add(button, wxSizerFlags().Expand().Border(wxBOTTOM));
        button->Bind(wxEVT_BUTTON, [this, action](wxCommandEvent& /*event*/) {
            action();
            show();
        });
    };
    add(_("&Add >"), [this] { addOne(); });
    add(_("Add a&ll >>"), [this] { rules_.cmdAddAll_Click(); });
    add(_("< &Remove"), [this] { removeOne(); });
    add(_("<< Re&move all"), [this] { rules_.cmdRemoveAll_Click(); });
    return column;
}

wxSizer* PrintDialog::bottomRow() {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    auto* settings = new wxButton(this, wxID_PRINT_SETUP, _("Printer &settings..."));
    status_ =
        new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
    auto* cmdPrint = new wxButton(this, wxID_PRINT, _("Pri&nt"));
    auto* cmdStop = new wxButton(this, wxID_STOP, _("S&top"));
    cmdStop->Disable();
    row->Add(settings);
    row->Add(status_, wxSizerFlags(1).CentreVertical().Border(wxLEFT));
    row->Add(cmdPrint, wxSizerFlags().Border(wxLEFT));
    row->Add(cmdStop, wxSizerFlags().Border(wxLEFT));
    row->Add(new wxButton(this, wxID_CLOSE, _("Cl&ose")), wxSizerFlags().Border(wxLEFT));
    cmdPrint->SetDefault();
    settings->Bind(wxEVT_BUTTON,
                   [this](wxCommandEvent& /*event*/) { CallAfter([this] { rules_.cmdPrinterSettings_Click(); }); });
    cmdPrint->Bind(wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) { CallAfter([this] { print(); }); });
    cmdStop->Bind(wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) { rules_.cmdStop_Click(); });
    return row;
}

void PrintDialog::addOne() {
    rules_.cmdAdd_Click(static_cast<std::size_t>(lstAllCategories_->GetSelection()));
    show();
}

void PrintDialog::removeOne() {
    rules_.cmdRemove_Click(static_cast<std::size_t>(lstPrintCategories_->GetSelection()));
    show();
}

void PrintDialog::show() {
    fill(*lstAllCategories_, rules_.lstAllCategories(), rules_);
    fill(*lstPrintCategories_, rules_.lstPrintCategories(), rules_);
    outcome_->SetLabelText(shownLine(rules_.outcome()));
}

void PrintDialog::print() {
    const auto showPrinting = [this](bool printing) {
        FindWindow(wxID_PRINT)->Enable(!printing);
        FindWindow(wxID_PRINT_SETUP)->Enable(!printing);
        FindWindow(wxID_STOP)->Enable(printing);
    };
    showPrinting(true);
    rules_.cmdPrint_Click([this](std::string_view text) {
        status_->SetLabelText(shownLine(text));
        Update();
    });
    showPrinting(false);
}

}  // namespace vell
