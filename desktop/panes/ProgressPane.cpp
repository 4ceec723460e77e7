// SPDX-License-Identifier: MIT
#include "desktop/panes/ProgressPane.h"

#include <wx/gauge.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "desktop/native/accessibleName.h"

namespace vell {

ProgressPane::ProgressPane(wxWindow* parent) : wxPanel(parent) {
    auto* sizer = new wxFlexGridSizer(2, FromDIP(wxSize(8, 8)));
    sizer->AddGrowableCol(1);
    const auto addBar = [&](const wxString& label, const wxString& name) {
        constexpr int percents = 100;
        auto* bar = new wxGauge(this, wxID_ANY, percents);
        setAccessibleName(*bar, name);
        sizer->Add(new wxStaticText(this, wxID_ANY, label), wxSizerFlags().CentreVertical());
        sizer->Add(bar, wxSizerFlags(1).Expand().CentreVertical());
        return bar;
    };
    currentFile_ = addBar("File", "Progress of the current file");
    wholeRun_ = addBar("All", "Progress of the whole download");
    SetSizer(sizer);
}

void ProgressPane::show(int currentFile, int wholeRun) {
    currentFile_->SetValue(currentFile);
    wholeRun_->SetValue(wholeRun);
}

}  // namespace vell
