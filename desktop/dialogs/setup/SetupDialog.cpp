// SPDX-License-Identifier: MIT
#include "desktop/dialogs/setup/SetupDialog.h"

#include <algorithm>
#include <utility>

#include <wx/notebook.h>
#include <wx/sizer.h>

#include "desktop/dialogs/finishDialog.h"
#include "desktop/dialogs/setup/SetupPage.h"
#include "desktop/native/accessibleName.h"
#include "desktop/screenText.h"
#include "platform/MessageBoxes.h"

namespace vell {

namespace {

constexpr int smallestWidth = 620;  // DIP

wxArrayString shownLines(std::span<const std::string_view> texts) {
    wxArrayString shown;
    for (const std::string_view text : texts)
        shown.Add(shownLine(text));
    return shown;
}

}  // namespace

SetupDialog::SetupDialog(wxWindow* parent, frmSetup rules, MessageBoxes& boxes, const std::vector<std::string>& dialUps)
    : wxDialog(parent, wxID_ANY, _("Setup"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      rules_(std::move(rules)),
      boxes_(boxes),
      notebook_(new wxNotebook(this, wxID_ANY)) {
    setAccessibleName(*notebook_, _("Setup"));
    rules_.Form_Load();
    addGeneral();
    addConnection(dialUps);
    addAutoUpdate();
    for (SetupPage* page : pages_)
        page->finish();
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(notebook_, wxSizerFlags(1).Expand().Border());
    sizer->Add(CreateStdDialogButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Expand().Border());
    sizer->SetMinSize(FromDIP(wxSize(smallestWidth, -1)));
    finishDialog(*this, sizer, *notebook_);
    begin();
    notebook_->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, [this](wxBookCtrlEvent& event) {
        event.Skip();
        if (event.GetOldSelection() >= 0) pages_[static_cast<std::size_t>(event.GetOldSelection())]->leaveAll();
    });
    Bind(
        wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) { CallAfter([this] { ok(); }); }, wxID_OK);
    // The window itself may live on, until the end of a download that goes on behind it.
    Bind(wxEVT_SHOW, [this](wxShowEvent& event) {
        event.Skip();
        if (!event.IsShown()) rules_.Form_Unload();
    });
}

SetupPage* SetupDialog::addPage(const wxString& title) {
    auto* page = new SetupPage(notebook_, rules_, [this] { refresh(); });
    notebook_->AddPage(page, title);
    pages_.push_back(page);
    return page;
}

void SetupDialog::addGeneral() {
    SetupPage* page = addPage(_("General"));
    page->addFolder(_("&Download folder:"));
    page->addText(&Settings::RetryOnFailure, _("Number of re&tries:"));
    page->addText(&Settings::RetryDelay, _("Retr&y delay (seconds):"));
    page->addText(&Settings::AutoPlayDelay, _("&Auto play delay (seconds):"));
    page->addText(&Settings::PrintAllDelay, _("Print a&ll delay (seconds):"));
    page->addFlag(&Settings::PrintOnDownload, _("&Print clippings when they are downloaded"));
    page->addFlag(&Settings::CloseConnection, _("Close the co&nnection after a download"));
}

void SetupDialog::addConnection(const std::vector<std::string>& dialUps) {
    SetupPage* page = addPage(_("Connection"));
    page->addProtocol();
    page->addCombo(&Settings::Host, _("&Host:"), shownLines(frmSetup::hosts()));
    page->addText(&Settings::Uid, _("&User name:"));
    page->addText(&Settings::Pwd, _("&Password:"));
    page->addText(&Settings::Port, _("Po&rt:"));
    page->addText(&Settings::TimeOut, _("Ti&me-out (seconds):"));
    page->addText(&Settings::proxyUsername, _("Pro&xy user name:"));
    page->addText(&Settings::proxyPwd, _("Prox&y password:"));
    const std::vector<std::string_view> names(dialUps.begin(), dialUps.end());
    page->addCombo(&Settings::DialUp, _("&Dial-up connection:"), shownLines(names));
    page->addFlag(&Settings::Passive, _("Passi&ve FTP"));
}

void SetupDialog::addAutoUpdate() {
    SetupPage* page = addPage(_("Auto Update"));
    page->addFlag(&Settings::AutoUpdateCheck, _("&Look for a newer version after each download"));
    page->addRemark(_("What the service offers is taken only when the program's maker has signed it."));
    page->addFlag(&Settings::AutoUpdateServer, _("&Share newer versions through the download folder"));
    page->addRemark(_("Of several computers with one download folder, only the first has to fetch a version."));
    page->addFlag(&Settings::AutoUpdateNotify, _("&Ask me before a newer version is fetched"));
    page->addRemark(_("It is installed when the program starts the next time."));
}

void SetupDialog::begin() {
    if (const auto problem = rules_.firstProblem())
        goTo(problem->Field);
    else
        pages_.front()->goToFirst();
}

void SetupDialog::goTo(const SettingField& field) {
    for (std::size_t page = 0; page < pages_.size(); ++page) {
        if (!pages_[page]->has(field)) continue;
        notebook_->ChangeSelection(page);
        pages_[page]->goTo(field);
    }
}

void SetupDialog::refresh() {
    for (SetupPage* page : pages_)
        page->refresh();
}

void SetupDialog::ok() {
    for (SetupPage* page : pages_)
        page->leaveAll();
    const auto problem = rules_.cmdOk_Click();
    if (!problem) {
        accept();
        return;
    }
    boxes_.Show(problem->Message, programCaption, Buttons::Ok, BoxIcon::None);
    goTo(problem->Field);
}

// A dialog without an event loop of its own is told apart from a cancelled one by its return code alone.
void SetupDialog::accept() {
    SetReturnCode(wxID_OK);
    AcceptAndClose();
}

}  // namespace vell
