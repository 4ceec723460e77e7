// SPDX-License-Identifier: MIT
#include "desktop/dialogs/setup/SetupPage.h"

#include <utility>

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/dirdlg.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "desktop/dialogs/setup/EntryNote.h"
#include "desktop/native/accessibleName.h"
#include "desktop/native/oneStop.h"
#include "desktop/screenText.h"

namespace vell {

namespace {

// DIP
constexpr int widestRemark = 460;
constexpr int narrowestFolder = 220;

wxSizer* cellOf(wxWindow* control, const wxSizerFlags& flags) {
    auto* cell = new wxBoxSizer(wxHORIZONTAL);
    cell->Add(control, flags);
    return cell;
}

}  // namespace

SetupPage::SetupPage(wxWindow* parent, frmSetup& rules, std::function<void()> changed)
    : wxScrolledWindow(parent),
      rules_(rules),
      changed_(std::move(changed)),
      rows_(new wxFlexGridSizer(3, FromDIP(wxSize(10, 6)))),
      below_(new wxBoxSizer(wxVERTICAL)) {
    rows_->AddGrowableCol(1);
    auto* content = new wxBoxSizer(wxVERTICAL);
    content->AddSpacer(FromDIP(12));
    content->Add(rows_, wxSizerFlags().Expand().DoubleBorder(wxLEFT | wxRIGHT | wxBOTTOM));
    content->Add(below_, wxSizerFlags().Expand().DoubleBorder(wxLEFT | wxRIGHT | wxBOTTOM));
    SetSizer(content);
    SetScrollRate(0, FromDIP(10));
}

void SetupPage::addProtocol() {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    rows_->Add(new wxStaticText(this, wxID_ANY, _("Protocol:")), wxSizerFlags().CentreVertical());
    wxRadioButton* http = addChoice(*row, "HTTP", _("H&TTP"), wxRB_GROUP);
    wxRadioButton* ftp = addChoice(*row, "FTP", _("&FTP"), 0);
    rows_->Add(row, wxSizerFlags().CentreVertical());
    rows_->AddSpacer(0);
    (rules_.entry(&Settings::Protocol) == "FTP" ? ftp : http)->SetValue(true);
    boxes_[&rowOf(&Settings::Protocol)].Control = http;
    first_ = first_ ? first_ : http;
}

wxRadioButton* SetupPage::addChoice(wxSizer& row, const char* protocol, const wxString& label, long style) {
    auto* choice = new wxRadioButton(this, wxID_ANY, label, wxDefaultPosition, wxDefaultSize, style);
    row.Add(choice, wxSizerFlags().Border(wxRIGHT, FromDIP(16)));
    choice->Bind(wxEVT_RADIOBUTTON, [this, protocol](wxCommandEvent& /*event*/) {
        rules_.setEntry(&Settings::Protocol, protocol);
        changed_();
    });
    return choice;
}

void SetupPage::addFolder(const wxString& label) {
    auto* text = new wxTextCtrl(this, wxID_ANY, "");
    text->SetMinSize({FromDIP(narrowestFolder), -1});
    auto* cmdSelDirectory =
        new wxButton(this, wxID_ANY, _("&Browse..."), wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT);
    wxSizer* cell = cellOf(text, wxSizerFlags(1).CentreVertical().Border(wxRIGHT));
    cell->Add(cmdSelDirectory, wxSizerFlags().CentreVertical());
    addRow(&Settings::LocalDir, label, text, text, cell);
    cmdSelDirectory->Bind(wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) { CallAfter([this] { chooseFolder(); }); });
}

void SetupPage::addText(const SettingField& field, const wxString& label) {
    const SettingRow& row = rowOf(field);
    auto* text = new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                row.Kind == SettingKind::Password ? wxTE_PASSWORD : 0);
    if (isNumber(row)) text->SetInitialSize(text->GetSizeFromTextSize(text->GetTextExtent("0000000")));
    addRow(field, label, text, text, cellOf(text, wxSizerFlags(isNumber(row) ? 0 : 1).CentreVertical()));
}

void SetupPage::addCombo(const SettingField& field, const wxString& label, const wxArrayString& offered) {
    auto* combo = new wxComboBox(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, offered, wxCB_DROPDOWN);
    makeOneStop(*combo);
    combo->Bind(wxEVT_COMBOBOX, [this, field](wxCommandEvent& /*event*/) { typed(field); });
    addRow(field, label, combo, combo, cellOf(combo, wxSizerFlags(1).CentreVertical()));
}

void SetupPage::addRow(const SettingField& field, const wxString& label, wxWindow* control, wxTextEntry* text,
                       wxSizer* cell) {
    // A label leads the keyboard to the control that was made after it.
    auto* caption = new wxStaticText(this, wxID_ANY, label);
    caption->MoveBeforeInTabOrder(control);
    auto* note = new EntryNote(this, *control);
    rows_->Add(caption, wxSizerFlags().CentreVertical());
    rows_->Add(cell, wxSizerFlags().Expand());
    rows_->Add(note, wxSizerFlags().CentreVertical());
    setAccessibleName(*control, wxControl::RemoveMnemonics(label).BeforeFirst(':'));
    boxes_[&rowOf(field)] = {control, text, caption, note};
    first_ = first_ ? first_ : control;
    showText(field);
    control->Bind(wxEVT_TEXT, [this, field](wxCommandEvent& /*event*/) { typed(field); });
    control->Bind(wxEVT_KILL_FOCUS, [this, field](wxFocusEvent& event) {
        event.Skip();
        left(field);
    });
}

void SetupPage::addFlag(const SettingField& field, const wxString& label) {
    auto* box = new wxCheckBox(this, wxID_ANY, label);
    box->SetValue(rules_.entry(field) == "1");
    box->Bind(wxEVT_CHECKBOX,
              [this, field](wxCommandEvent& event) { rules_.setEntry(field, event.IsChecked() ? "1" : "0"); });
    below_->Add(box, wxSizerFlags().Border(wxBOTTOM));
    boxes_[&rowOf(field)].Control = box;
    first_ = first_ ? first_ : box;
}

void SetupPage::addRemark(const wxString& text) {
    auto* remark = new wxStaticText(this, wxID_ANY, text);
    remark->Wrap(FromDIP(widestRemark));
    below_->Add(remark, wxSizerFlags().Border(wxTOP | wxBOTTOM));
}

void SetupPage::finish() {
    SetMinSize(GetSizer()->CalcMin());
    FitInside();
    refresh();
}

void SetupPage::refresh() {
    for (const auto& [row, box] : boxes_) {
        box.Control->Enable(rules_.isEnabled(row->Field));
        if (box.Label) box.Label->Enable(rules_.isEnabled(row->Field));
        if (box.Note) box.Note->show(shownLine(rules_.note(row->Field)));
    }
}

void SetupPage::typed(const SettingField& field) {
    rules_.typed(field, boxes_.at(&rowOf(field)).Text->GetValue().utf8_string());
    showText(field);
    refresh();
}

void SetupPage::left(const SettingField& field) {
    rules_.left(field);
    showText(field);
    refresh();
}

// Only when it is another: the cursor would leave its place.
void SetupPage::showText(const SettingField& field) {
    wxTextEntry& text = *boxes_.at(&rowOf(field)).Text;
    const std::string& entry = rules_.entry(field);
    if (typedText(text.GetValue()) == entry) return;
    text.ChangeValue(shownLine(entry));
    text.SetInsertionPointEnd();
}

void SetupPage::chooseFolder() {
    const wxString now = shownLine(rules_.entry(&Settings::LocalDir));
    wxDirDialog browser(this, "Select Download Folder", now.empty() ? wxString("c:\\") : now);
    const wxString chosen = browser.ShowModal() == wxID_OK ? browser.GetPath() : wxString();
    rules_.cmdSelDirectory_Click(typedText(chosen));
    if (chosen.empty()) return;
    boxes_.at(&rowOf(&Settings::LocalDir)).Text->ChangeValue(chosen);
    typed(&Settings::LocalDir);  // it may hold characters that the settings file cannot
    left(&Settings::LocalDir);
}

void SetupPage::leaveAll() {
    for (const auto& [row, box] : boxes_)
        if (box.Text) left(row->Field);
}

void SetupPage::goTo(const SettingField& field) {
    const Box& box = boxes_.at(&rowOf(field));
    box.Control->SetFocus();
    if (box.Text) box.Text->SelectAll();
}

void SetupPage::goToFirst() {
    first_->SetFocus();
}

}  // namespace vell
