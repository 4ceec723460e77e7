// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include <wx/dialog.h>

#include "config/frmSetup.h"

class wxCheckBox;
class wxComboBox;
class wxFlexGridSizer;
class wxNotebook;
class wxRadioButton;
class wxSizer;
class wxTextEntry;

namespace vell {

class MessageBoxes;

// The setup dialog: three pages of entries. What is right and what is saved is decided elsewhere.
class SetupDialog : public wxDialog {
  public:
    SetupDialog(wxWindow* parent, frmSetup rules, MessageBoxes& boxes, const std::vector<std::string>& dialUps);

  private:
    struct Entry {
        wxWindow* Control = nullptr;
        wxTextEntry* Text = nullptr;  // of a control that holds text
        wxCheckBox* Box = nullptr;
        wxWindow* Label = nullptr;
        int Page = 0;
    };

    [[nodiscard]] wxWindow* generalPage(wxWindow* parent);
    [[nodiscard]] wxWindow* connectionPage(wxWindow* parent, const std::vector<std::string>& dialUps);
    [[nodiscard]] wxWindow* autoUpdatePage(wxWindow* parent);
    void addProtocol(wxWindow* page, wxFlexGridSizer& sizer);
    void addFolder(wxWindow* page, wxFlexGridSizer& sizer);
    void addText(wxWindow* page, wxFlexGridSizer& sizer, const SettingField& field, const wxString& label);
    void addCombo(wxWindow* page, wxFlexGridSizer& sizer, const SettingField& field, const wxString& label,
                  const wxArrayString& offered);
    void addBox(wxWindow* page, wxSizer& sizer, const SettingField& field, const wxString& label);
    void keepText(const SettingField& field, wxWindow* label, wxWindow* control, wxTextEntry* text);

    [[nodiscard]] Entry& entryOf(const SettingField& field) { return entries_.at(&rowOf(field)); }
    void typed(const SettingField& field);
    void left(const SettingField& field);
    void normalise(const SettingField& field);
    void chooseFolder();
    void chooseProtocol(const std::string& protocol);
    void showEnabled();
    void ok();
    void accept();
    [[nodiscard]] bool isExpressible();
    void complain(const std::string& message, const SettingField& field);

    frmSetup rules_;
    MessageBoxes& boxes_;
    wxNotebook* pages_ = nullptr;
    wxRadioButton* http_ = nullptr;
    wxRadioButton* ftp_ = nullptr;
    std::map<const SettingRow*, Entry> entries_;
};

}  // namespace vell
