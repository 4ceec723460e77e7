// SPDX-License-Identifier: MIT
#include "desktop/dialogs/FailedFilesDialog.h"

#include <utility>

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/translation.h>

#include "desktop/dialogs/finishDialog.h"
#include "desktop/native/accessibleName.h"
#include "desktop/screenText.h"

namespace vell {

FailedFilesDialog::FailedFilesDialog(wxWindow* parent, frmFailedFiles rules)
    : wxDialog(parent, wxID_ANY, _("Failed files"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      rules_(std::move(rules)) {
    auto* hint = new wxStaticText(this, wxID_ANY, _("Select what to fetch again. Nothing selected fetches all."));
    addList();
    auto* again = new wxButton(this, wxID_OK, _("&Try again"));
    again->SetDefault();
    auto* buttons = new wxStdDialogButtonSizer;
    buttons->AddButton(again);
    buttons->AddButton(new wxButton(this, wxID_CANCEL, _("&Close")));
    buttons->Realize();
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(hint, wxSizerFlags().Border());
    sizer->Add(files_, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT));
    sizer->Add(buttons, wxSizerFlags().Expand().Border());
    files_->Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, [this](wxDataViewEvent& /*event*/) { accept(); });
    again->Bind(wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) { accept(); });
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {  // GTK's list keeps the key for itself
        if (event.GetKeyCode() == WXK_RETURN && files_->HasFocus())
            accept();
        else
            event.Skip();
    });
    finishDialog(*this, sizer, *files_);
}

// A dialog without an event loop of its own is told apart from a cancelled one by its return code alone.
void FailedFilesDialog::accept() {
    SetReturnCode(wxID_OK);
    AcceptAndClose();
}

void FailedFilesDialog::addList() {
    files_ = new wxDataViewCtrl(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(780, 260)),
                                wxDV_MULTIPLE | wxDV_ROW_LINES);
    setAccessibleName(*files_, _("Failed files"));
    model_.reset(new FailedFilesModel(rules_.rows()));
    files_->AssociateModel(model_.get());
    const auto addColumn = [this](const wxString& title, FailedFilesModel::Column column, int width) {
        auto* texts = new wxDataViewTextRenderer;
        texts->EnableEllipsize(wxELLIPSIZE_END);
        files_->AppendColumn(new wxDataViewColumn(title, texts, column, FromDIP(width), wxALIGN_LEFT));
    };
    addColumn(_("Day"), FailedFilesModel::Day, 90);
    addColumn(_("Title"), FailedFilesModel::Title, 240);
    addColumn(_("File"), FailedFilesModel::File, 170);
    addColumn(_("Cause"), FailedFilesModel::Cause, 260);
}

std::vector<FailedFile> FailedFilesDialog::chosen() const {
    wxDataViewItemArray items;
    files_->GetSelections(items);
    std::vector<std::size_t> rows;
    for (const wxDataViewItem& item : items)
        rows.push_back(model_->GetRow(item));
    return rules_.filesOf(rows);
}

}  // namespace vell
