// SPDX-License-Identifier: MIT
#include "desktop/dialogs/AboutDialog.h"

#include <wx/hyperlink.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/translation.h>

#include "desktop/dialogs/finishDialog.h"
#include "desktop/native/accessibleName.h"
#include "desktop/pictures.h"
#include "desktop/screenText.h"

namespace vell {

AboutDialog::AboutDialog(wxWindow* parent, const std::string& version, const std::string& address,
                         const std::function<void()>& open)
    : wxDialog(parent, wxID_ANY, _("About Vell")) {
    auto* picture = new wxStaticBitmap(this, wxID_ANY, programPicture());
    setAccessibleName(*picture, "Vell");
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(picture, wxSizerFlags().DoubleBorder());
    row->Add(texts(version, address, open), wxSizerFlags(1).DoubleBorder());
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(row, wxSizerFlags(1).Expand());
    sizer->Add(CreateStdDialogButtonSizer(wxOK), wxSizerFlags().Expand().Border());
    finishDialog(*this, sizer, *FindWindow(wxID_OK));
}

wxSizer* AboutDialog::texts(const std::string& version, const std::string& address, const std::function<void()>& open) {
    auto* column = new wxBoxSizer(wxVERTICAL);
    const auto add = [&](const wxString& text) {
        auto* shown = new wxStaticText(this, wxID_ANY, "");
        shown->SetLabelText(text);
        column->Add(shown, wxSizerFlags().Border(wxBOTTOM));
        return shown;
    };
    auto* name = add("Vell");
    name->SetFont(name->GetFont().Bold().Scaled(1.6F));
    add(wxString::Format(_("Version %s"), shownLine(version)));
    add(_("The desktop client of the press-clipping service Quillon."));
    add(_("Made by the Vell authors. Copyright 2026, MIT licence."));
    if (!address.empty()) {
        add(_("The service's page:"));
        auto* link = new wxHyperlinkCtrl(this, wxID_ANY, shownLabel(address), shownLine(address));
        link->Bind(wxEVT_HYPERLINK, [open](wxHyperlinkEvent& /*event*/) { open(); });
        column->Add(link);
    }
    return column;
}

}  // namespace vell
