// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>

#include <wx/scrolwin.h>

#include "config/frmSetup.h"

class wxArrayString;
class wxFlexGridSizer;
class wxRadioButton;
class wxSizer;
class wxTextEntry;

namespace vell {

class EntryNote;

// One page of the setup dialog: a row per setting with its label, its box and a note of what is wrong with it, then
// check boxes. On a small screen it scrolls.
class SetupPage : public wxScrolledWindow {
  public:
    // `changed`: an entry has become another, which may change what other boxes offer.
    SetupPage(wxWindow* parent, frmSetup& rules, std::function<void()> changed);

    void addProtocol();
    void addFolder(const wxString& label);
    void addText(const SettingField& field, const wxString& label);
    void addCombo(const SettingField& field, const wxString& label, const wxArrayString& offered);
    void addFlag(const SettingField& field, const wxString& label);
    void addRemark(const wxString& text);

    // When all is added: asks for the room that it takes. Given less, the page scrolls.
    void finish();
    // Notes, and what can be changed, as the rules say now.
    void refresh();
    // The user has left every box of this page.
    void leaveAll();
    [[nodiscard]] bool has(const SettingField& field) const { return boxes_.contains(&rowOf(field)); }
    // Puts the keyboard into the box of a setting that this page has.
    void goTo(const SettingField& field);
    // Into the page's first box.
    void goToFirst();

  private:
    struct Box {
        wxWindow* Control = nullptr;
        wxTextEntry* Text = nullptr;  // of a control that holds text
        wxWindow* Label = nullptr;
        EntryNote* Note = nullptr;
    };

    wxRadioButton* addChoice(wxSizer& row, const char* protocol, const wxString& label, long style);
    // `control`: what holds the text; `cell`: what stands in the row, which may be more.
    void addRow(const SettingField& field, const wxString& label, wxWindow* control, wxTextEntry* text, wxSizer* cell);
    void typed(const SettingField& field);
    void left(const SettingField& field);
    void showText(const SettingField& field);
    void chooseFolder();

    frmSetup& rules_;
    std::function<void()> changed_;
    wxFlexGridSizer* rows_;
    wxSizer* below_;  // the check boxes
    std::map<const SettingRow*, Box> boxes_;
    wxWindow* first_ = nullptr;
};

}  // namespace vell
