// SPDX-License-Identifier: MIT
#include "desktop/sidebar/ProgressPane.h"

#include <wx/gauge.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/translation.h>

#include "desktop/native/accessibleName.h"
#include "desktop/native/paintAfterLayout.h"

namespace vell {

ProgressPane::ProgressPane(wxWindow* parent)
    : wxPanel(parent), painting_([this] {
          currentFile_->SetValue(currentPercent_);
          wholeRun_->SetValue(wholePercent_);
      }) {
    auto* sizer = new wxFlexGridSizer(2, FromDIP(wxSize(8, 8)));
    sizer->AddGrowableCol(1);
    const auto addBar = [&](const wxString& label, const wxString& name) {
        constexpr int percents = 100;
        auto* bar = new wxGauge(this, wxID_ANY, percents);
        setAccessibleName(*bar, name);
        paintAfterLayout(*bar);
        sizer->Add(new wxStaticText(this, wxID_ANY, label), wxSizerFlags().CentreVertical());
        sizer->Add(bar, wxSizerFlags(1).Expand().CentreVertical());
        return bar;
    };
    currentFile_ = addBar(_("File"), _("Progress file"));
    wholeRun_ = addBar(_("All"), _("Progress all"));
    SetSizer(sizer);
    m_container.DisableSelfFocus();  // there is nothing to do here with the keyboard
}

void ProgressPane::show(int currentFile, int wholeRun) {
    currentPercent_ = currentFile;
    wholePercent_ = wholeRun;
    painting_.changed();
}

}  // namespace vell
