// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <wx/dialog.h>

#include "config/frmSetup.h"

class wxNotebook;

namespace vell {

class MessageBoxes;
class SetupPage;

// The setup dialog: three pages of entries. What is right and what is saved is decided elsewhere.
class SetupDialog : public wxDialog {
  public:
    SetupDialog(wxWindow* parent, frmSetup rules, MessageBoxes& boxes, const std::vector<std::string>& dialUps);

    // Begins in a setting's box instead of the first one that wants something.
    void goTo(const SettingField& field);

  private:
    SetupPage* addPage(const wxString& title);
    void addGeneral();
    void addConnection(const std::vector<std::string>& dialUps);
    void addAutoUpdate();
    void begin();
    void refresh();
    void ok();
    void accept();

    frmSetup rules_;
    MessageBoxes& boxes_;
    wxNotebook* notebook_;
    std::vector<SetupPage*> pages_;
};

}  // namespace vell
