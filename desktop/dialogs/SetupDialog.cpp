// SPDX-License-Identifier: MIT
#include "desktop/dialogs/SetupDialog.h"

#include <algorithm>
#include <array>
#include <utility>

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/combobox.h>
#include <wx/dirdlg.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "base/text.h"
#include "desktop/native/accessibleName.h"
#include "desktop/screenText.h"
#include "platform/MessageBoxes.h"

namespace vell {

namespace {

wxFlexGridSizer* entryGrid(const wxWindow& window) {
    auto* grid = new wxFlexGridSizer(2, window.FromDIP(wxSize(10, 8)));
    grid->AddGrowableCol(1);
    return grid;
}

wxWindow* finishPage(wxWindow* page, wxSizer* content) {
    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(content, wxSizerFlags(1).Expand().DoubleBorder());
    page->SetSizer(margin);
    return page;
}

wxArrayString shownLines(std::span<const std::string_view> texts) {
    wxArrayString shown;
    for (const std::string_view text : texts)
        shown.Add(shownLine(text));
    return shown;
}

// These become plain numbers while they are typed, the other numbers when the user leaves them.
bool isNormalisedWhileTyped(const SettingField& field) {
    constexpr std::array<SettingField, 3> fields{&Settings::Port, &Settings::TimeOut, &Settings::PrintAllDelay};
    return std::ranges::find(fields, field) != fields.end();
}

}  // namespace

SetupDialog::SetupDialog(wxWindow* parent, frmSetup rules, MessageBoxes& boxes, const std::vector<std::string>& dialUps)
    : wxDialog(parent, wxID_ANY, "Setup", wxDefaultPosition, wxDefaultSize, wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      rules_(std::move(rules)),
      boxes_(boxes) {
    rules_.Form_Load();
    pages_ = new wxNotebook(this, wxID_ANY);
    pages_->AddPage(generalPage(pages_), "General");
    pages_->AddPage(connectionPage(pages_, dialUps), "Connection");
    pages_->AddPage(autoUpdatePage(pages_), "Auto Update");
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(pages_, wxSizerFlags(1).Expand().Border());
    sizer->Add(CreateStdDialogButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Expand().Border());
    SetSizerAndFit(sizer);
    SetSize(wxSize(FromDIP(520), GetSize().GetHeight()));
    CentreOnParent();
    showEnabled();
    Bind(
        wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) { CallAfter([this] { ok(); }); }, wxID_OK);
    // The window itself may live on, until the end of a download that goes on behind it.
    Bind(wxEVT_SHOW, [this](wxShowEvent& event) {
        event.Skip();
        if (!event.IsShown()) rules_.Form_Unload();
    });
}

wxWindow* SetupDialog::generalPage(wxWindow* parent) {
    auto* page = new wxPanel(parent);
    auto* grid = entryGrid(*page);
    addFolder(page, *grid);
    addText(page, *grid, &Settings::AutoPlayDelay, "&Auto play delay (seconds):");
    addText(page, *grid, &Settings::PrintAllDelay, "Print a&ll delay (seconds):");
    auto* content = new wxBoxSizer(wxVERTICAL);
    content->Add(grid, wxSizerFlags().Expand().DoubleBorder(wxBOTTOM));
    addBox(page, *content, &Settings::PrintOnDownload, "&Print clippings when they are downloaded");
    return finishPage(page, content);
}

wxWindow* SetupDialog::connectionPage(wxWindow* parent, const std::vector<std::string>& dialUps) {
    auto* page = new wxPanel(parent);
    auto* grid = entryGrid(*page);
    addProtocol(page, *grid);
    addCombo(page, *grid, &Settings::Host, "&Host:", shownLines(frmSetup::hosts()));
    addText(page, *grid, &Settings::Port, "Po&rt:");
    addText(page, *grid, &Settings::Uid, "&User name:");
    addText(page, *grid, &Settings::Pwd, "&Password:");
    addText(page, *grid, &Settings::RetryOnFailure, "Number of re&tries:");
    addText(page, *grid, &Settings::RetryDelay, "Retr&y delay (seconds):");
    addText(page, *grid, &Settings::TimeOut, "Ti&me-out (seconds):");
    addText(page, *grid, &Settings::proxyUsername, "Pro&xy user name:");
    addText(page, *grid, &Settings::proxyPwd, "Prox&y password:");
    const std::vector<std::string_view> names(dialUps.begin(), dialUps.end());
    addCombo(page, *grid, &Settings::DialUp, "&Dial-up connection:", shownLines(names));
    auto* content = new wxBoxSizer(wxVERTICAL);
    content->Add(grid, wxSizerFlags().Expand().DoubleBorder(wxBOTTOM));
    addBox(page, *content, &Settings::Passive, "Passi&ve FTP");
    addBox(page, *content, &Settings::CloseConnection, "&Close the connection after a download");
    return finishPage(page, content);
}

wxWindow* SetupDialog::autoUpdatePage(wxWindow* parent) {
    auto* page = new wxPanel(parent);
    auto* content = new wxBoxSizer(wxVERTICAL);
    addBox(page, *content, &Settings::AutoUpdateCheck, "&Look for a newer version after each download");
    addBox(page, *content, &Settings::AutoUpdateServer, "&Fetch updates for the other computers, too");
    addBox(page, *content, &Settings::AutoUpdateNotify, "&Tell me of a newer version");
    return finishPage(page, content);
}

void SetupDialog::addProtocol(wxWindow* page, wxFlexGridSizer& sizer) {
    auto* choice = new wxBoxSizer(wxHORIZONTAL);
    auto* label = new wxStaticText(page, wxID_ANY, "Protocol:");
    http_ = new wxRadioButton(page, wxID_ANY, "HTTP", wxDefaultPosition, wxDefaultSize, wxRB_GROUP);
    ftp_ = new wxRadioButton(page, wxID_ANY, "FTP");
    (rules_.entry(&Settings::Protocol) == "FTP" ? ftp_ : http_)->SetValue(true);
    http_->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent& /*event*/) { chooseProtocol("HTTP"); });
    ftp_->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent& /*event*/) { chooseProtocol("FTP"); });
    choice->Add(http_, wxSizerFlags().Border(wxRIGHT, FromDIP(16)));
    choice->Add(ftp_);
    sizer.Add(label, wxSizerFlags().CentreVertical());
    sizer.Add(choice, wxSizerFlags().CentreVertical());
}

void SetupDialog::addFolder(wxWindow* page, wxFlexGridSizer& sizer) {
    auto* label = new wxStaticText(page, wxID_ANY, "&Download folder:");
    auto* text = new wxTextCtrl(page, wxID_ANY, shownLine(rules_.entry(&Settings::LocalDir)));
    auto* cmdSelDirectory = new wxButton(page, wxID_ANY, "&Browse...", wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(text, wxSizerFlags(1).CentreVertical().Border(wxRIGHT));
    row->Add(cmdSelDirectory, wxSizerFlags().CentreVertical());
    sizer.Add(label, wxSizerFlags().CentreVertical());
    sizer.Add(row, wxSizerFlags().Expand());
    keepText(&Settings::LocalDir, label, text, text);
    cmdSelDirectory->Bind(wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) { CallAfter([this] { chooseFolder(); }); });
}

void SetupDialog::addText(wxWindow* page, wxFlexGridSizer& sizer, const SettingField& field, const wxString& label) {
    const SettingRow& row = rowOf(field);
    auto* caption = new wxStaticText(page, wxID_ANY, label);
    auto* text = new wxTextCtrl(page, wxID_ANY, shownLine(rules_.entry(field)), wxDefaultPosition, wxDefaultSize,
                                row.Kind == SettingKind::Password ? wxTE_PASSWORD : 0);
    wxSizerFlags flags = wxSizerFlags().CentreVertical();
    if (isNumber(row))
        text->SetInitialSize(text->GetSizeFromTextSize(text->GetTextExtent("0000000")));
    else
        flags.Expand();
    sizer.Add(caption, wxSizerFlags().CentreVertical());
    sizer.Add(text, flags);
    keepText(field, caption, text, text);
}

void SetupDialog::addCombo(wxWindow* page, wxFlexGridSizer& sizer, const SettingField& field, const wxString& label,
                           const wxArrayString& offered) {
    auto* caption = new wxStaticText(page, wxID_ANY, label);
    auto* combo = new wxComboBox(page, wxID_ANY, shownLine(rules_.entry(field)), wxDefaultPosition, wxDefaultSize,
                                 offered, wxCB_DROPDOWN);
    combo->Bind(wxEVT_COMBOBOX, [this, field](wxCommandEvent& /*event*/) { typed(field); });
    sizer.Add(caption, wxSizerFlags().CentreVertical());
    sizer.Add(combo, wxSizerFlags().Expand().CentreVertical());
    keepText(field, caption, combo, combo);
}

void SetupDialog::keepText(const SettingField& field, wxWindow* label, wxWindow* control, wxTextEntry* text) {
    setAccessibleName(*control, wxControl::RemoveMnemonics(label->GetLabel()).BeforeFirst(':'));
    entries_[&rowOf(field)] = {control, text, nullptr, label, static_cast<int>(pages_->GetPageCount())};
    control->Bind(wxEVT_TEXT, [this, field](wxCommandEvent& /*event*/) { typed(field); });
    control->Bind(wxEVT_KILL_FOCUS, [this, field](wxFocusEvent& event) {
        event.Skip();
        left(field);
    });
}

void SetupDialog::addBox(wxWindow* page, wxSizer& sizer, const SettingField& field, const wxString& label) {
    auto* box = new wxCheckBox(page, wxID_ANY, label);
    box->SetValue(rules_.entry(field) == "1");
    box->Bind(wxEVT_CHECKBOX,
              [this, field](wxCommandEvent& event) { rules_.setEntry(field, event.IsChecked() ? "1" : "0"); });
    sizer.Add(box, wxSizerFlags().Border(wxBOTTOM));
    entries_[&rowOf(field)] = {box, nullptr, box, nullptr, static_cast<int>(pages_->GetPageCount())};
}

void SetupDialog::typed(const SettingField& field) {
    rules_.setEntry(field, typedText(entryOf(field).Text->GetValue()));
    if (isNormalisedWhileTyped(field)) normalise(field);
}

void SetupDialog::left(const SettingField& field) {
    if (!isNormalisedWhileTyped(field)) normalise(field);
}

void SetupDialog::normalise(const SettingField& field) {
    const std::string typed = rules_.entry(field);
    rules_.normalise(field);
    if (rules_.entry(field) == typed) return;
    wxTextEntry& text = *entryOf(field).Text;
    text.ChangeValue(shownLine(rules_.entry(field)));
    text.SetInsertionPointEnd();
}

void SetupDialog::chooseFolder() {
    wxTextEntry& text = *entryOf(&Settings::LocalDir).Text;
    const wxString start = text.GetValue().empty() ? wxString("c:\\") : text.GetValue();
    wxDirDialog browser(this, "Select Download Folder", start);
    const wxString chosen = browser.ShowModal() == wxID_OK ? browser.GetPath() : wxString();
    rules_.cmdSelDirectory_Click(typedText(chosen));
    if (!chosen.empty()) text.ChangeValue(chosen);
}

void SetupDialog::chooseProtocol(const std::string& protocol) {
    rules_.setEntry(&Settings::Protocol, protocol);
    showEnabled();
}

void SetupDialog::showEnabled() {
    for (const auto& [row, entry] : entries_) {
        entry.Control->Enable(rules_.isEnabled(row->Field));
        if (entry.Label) entry.Label->Enable(rules_.isEnabled(row->Field));
    }
}

void SetupDialog::ok() {
    for (const auto& [row, entry] : entries_)
        if (entry.Text) left(row->Field);
    if (!isExpressible()) return;
    if (const auto problem = rules_.cmdOk_Click())
        complain(problem->Message, problem->Field);
    else
        accept();
}

// A dialog without an event loop of its own is told apart from a cancelled one by its return code alone.
void SetupDialog::accept() {
    SetReturnCode(wxID_OK);
    AcceptAndClose();
}

// A name that the code page cannot hold would be stored as another one.
bool SetupDialog::isExpressible() {
    for (const auto& [row, entry] : entries_) {
        if (!entry.Text || codePageFromUtf8(entry.Text->GetValue().utf8_string())) continue;
        complain("Error! There is a character that is neither Latin nor Greek", row->Field);
        return false;
    }
    return true;
}

void SetupDialog::complain(const std::string& message, const SettingField& field) {
    boxes_.Show(message, programCaption, Buttons::Ok, BoxIcon::None);
    pages_->SetSelection(static_cast<std::size_t>(entryOf(field).Page));
    entryOf(field).Control->SetFocus();
}

}  // namespace vell
