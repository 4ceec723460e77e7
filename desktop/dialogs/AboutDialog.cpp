// SPDX-License-Identifier: MIT
#include "desktop/dialogs/AboutDialog.h"

#include <wx/hyperlink.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

#include "desktop/native/accessibleName.h"
#include "desktop/pictures.h"
#include "desktop/screenText.h"

namespace vell {

AboutDialog::AboutDialog(wxWindow* parent, const std::string& version, const std::string& address,
                         const std::function<void()>& open)
    : wxDialog(parent, wxID_ANY, "About Vell") {
    auto* picture = new wxStaticBitmap(this, wxID_ANY, programPicture());
    setAccessibleName(*picture, "Vell");
    auto* name = new wxStaticText(this, wxID_ANY, "Vell");
    name->SetFont(name->GetFont().Bold().Scaled(1.6F));
    auto* texts = new wxBoxSizer(wxVERTICAL);
    texts->Add(name);
    texts->Add(new wxStaticText(this, wxID_ANY, "Version " + shownLine(version)), wxSizerFlags().Border(wxTOP));
    texts->Add(new wxStaticText(this, wxID_ANY, "The desktop client of a press-clipping service.\nMIT licence."),
               wxSizerFlags().DoubleBorder(wxTOP));
    if (!address.empty()) {
        auto* link = new wxHyperlinkCtrl(this, wxID_ANY, shownLabel(address), shownLine(address));
        link->Bind(wxEVT_HYPERLINK, [open](wxHyperlinkEvent& /*event*/) { open(); });
        texts->Add(link, wxSizerFlags().Border(wxTOP));
    }
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(picture, wxSizerFlags().DoubleBorder());
    row->Add(texts, wxSizerFlags(1).DoubleBorder());
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(row, wxSizerFlags(1).Expand());
    sizer->Add(CreateStdDialogButtonSizer(wxOK), wxSizerFlags().Expand().Border());
    SetSizerAndFit(sizer);
    CentreOnParent();
}

}  // namespace vell
