// SPDX-License-Identifier: MIT
#include "desktop/MainWindow.h"

#include <utility>

#include <wx/app.h>
#include <wx/menu.h>
#include <wx/panel.h>
#include <wx/sizer.h>

#include "desktop/MainMenu.h"
#include "desktop/bars/FilterBar.h"
#include "desktop/bars/FindBar.h"
#include "desktop/bars/MessageBar.h"
#include "desktop/bars/StatusLine.h"
#include "desktop/commandIds.h"
#include "desktop/list/ClippingsList.h"
#include "desktop/pictures.h"
#include "desktop/reading/ReadingSplitter.h"
#include "desktop/reading/TextPane.h"
#include "desktop/screenText.h"
#include "desktop/sidebar/Advertisement.h"
#include "desktop/sidebar/AlertPanel.h"
#include "desktop/sidebar/DatePane.h"
#include "desktop/sidebar/ForcedDownloadPane.h"
#include "desktop/sidebar/ProgressPane.h"
#include "desktop/windowPlace.h"

namespace vell {

namespace {
const wxSize smallest(640, 560);  // DIP
constexpr int sideBarWidth = 250;

template <class Event, class... Arguments>
void tell(const Event& event, const Arguments&... arguments) {
    if (event) event(arguments...);
}

}  // namespace

MainWindow::MainWindow(const Clock& clock, const Files& files)
    : wxFrame(nullptr, wxID_ANY, "Vell"),
      presence_(*this, {[this] { tell(events_.NoticeChosen); },
                        [this](int id) { CallAfter([this, id] { tell(events_.CommandChosen, id); }); },
                        [this](int id) { return events_.IsEnabled && events_.IsEnabled(id); }}) {
    SetIcons(programIcons());
    addMenuBar(*this);
    addToolBar(*this);
    StatusBar1_ = new StatusLine(this);
    SetStatusBar(StatusBar1_);
    SetStatusBarPane(-1);  // the words for menu entries must not overwrite the status of a run
    addParts(clock, files);
    keepLargerThan(*this, smallest);
    bindCommands();
}

void MainWindow::addParts(const Clock& clock, const Files& files) {
    auto* all = new wxPanel(this);
    message_ = new MessageBar(all, clock,
                              {[this](const std::optional<SettingField>& setting) {
                                   CallAfter([this, setting] { tell(events_.SettingInQuestion, setting); });
                               },
                               [this] { list_->focusList(); }});
    auto* columns = new wxBoxSizer(wxHORIZONTAL);
    columns->Add(sideBar(*all, clock, files), wxSizerFlags().Expand().Border(wxALL));
    find_ = new FindBar(all);
    filter_ = new FilterBar(all);
    reading_ = new ReadingSplitter(all);
    list_ = new ClippingsList(
        reading_, clock,
        {[this](std::size_t row) { tell(events_.RowDoubleClicked, row); }, [this] { tell(events_.RowsEntered); },
         [this](const wxPoint& place) { showContextMenu(place); },
         [this](GridColumn column) { tell(events_.SortChosen, column); },
         [this](const auto& rows) {
             return events_.FilesWanted ? events_.FilesWanted(rows) : std::vector<std::string>();
         },
         [this] { showColumnMenu(); }, [this] { tell(events_.RowSelected); },
         [this] { return events_.BlankPressed && events_.BlankPressed(); },
         [this](bool isShown) { hintShown(isShown); }});
    reading_->setList(list_);
    for (wxWindow* list : {static_cast<wxWindow*>(list_), static_cast<wxWindow*>(dates_)})
        addMenuKeys(*list);  // GTK's lists have uses of their own for Ctrl+F and Ctrl+P
    find_->MoveAfterInTabOrder(dates_);
    filter_->MoveAfterInTabOrder(find_);
    reading_->MoveAfterInTabOrder(filter_);
    auto* main = new wxBoxSizer(wxVERTICAL);
    main->Add(find_, wxSizerFlags().Expand().Border(wxBOTTOM));
    main->Add(filter_, wxSizerFlags().Expand().Border(wxBOTTOM));
    main->Add(reading_, wxSizerFlags(1).Expand());
    columns->Add(main, wxSizerFlags(1).Expand().Border(wxTOP | wxRIGHT | wxBOTTOM));
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(message_, wxSizerFlags().Expand());
    sizer->Add(columns, wxSizerFlags(1).Expand());
    all->SetSizer(sizer);
}

wxBoxSizer* MainWindow::sideBar(wxWindow& parent, const Clock& clock, const Files& files) {
    dates_ = new DatePane(&parent, clock,
                          {[this](const Date& day) { tell(events_.DayChosen, day); },
                           [this] { CallAfter([this] { tell(events_.CommandChosen, command::DeleteDay); }); }});
    download_ = new ForcedDownloadPane(&parent, {[this](bool onlyToday) { tell(events_.RangeChosen, onlyToday); },
                                                 [this](const Date& from) { tell(events_.FromDateChanged, from); },
                                                 [this](const Date& to) { tell(events_.ToDateChanged, to); },
                                                 [this](const std::string& text) { tell(events_.DayMistyped, text); }});
    progress_ = new ProgressPane(&parent);
    alert_ = new AlertPanel(&parent, {[this] { tell(events_.AlertSeen); },
                                      [this](const std::string& address) { tell(events_.AddressChosen, address); }});
    advertisement_ = new Advertisement(&parent, files);

    auto* bar = new wxBoxSizer(wxVERTICAL);
    bar->SetMinSize(FromDIP(wxSize(sideBarWidth, -1)));
    bar->Add(dates_, wxSizerFlags(1).Expand().DoubleBorder(wxBOTTOM));
    bar->Add(download_, wxSizerFlags().Expand().DoubleBorder(wxBOTTOM));
    bar->Add(progress_, wxSizerFlags().Expand().DoubleBorder(wxBOTTOM));
    bar->Add(alert_, wxSizerFlags(1).Expand().Border(wxBOTTOM));
    bar->Add(advertisement_, wxSizerFlags().Expand());
    return bar;
}

// Commands begin after the event that asked for them: one may last as long as a download, and a screen reader that
// pushed the button would be held up by it.
void MainWindow::bindCommands() {
    forEachCommand([this](int id) {
        const auto begin = [this, id](wxCommandEvent& /*event*/) {
            CallAfter([this, id] { tell(events_.CommandChosen, id); });
        };
        Bind(wxEVT_MENU, begin, id);
        Bind(wxEVT_BUTTON, begin, id);
        Bind(
            wxEVT_UPDATE_UI,
            [this, id](wxUpdateUIEvent& event) {
                event.Enable(events_.IsEnabled && events_.IsEnabled(id));
                if (event.IsCheckable() && events_.IsOn) event.Check(events_.IsOn(id));
            },
            id);
    });
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
        if (events_.Closing)
            events_.Closing(event.CanVeto());  // ends the process, in its own time
        else
            event.Skip();
    });
}

void MainWindow::hintShown(bool isShown) {
    const bool hadKeyboard = reading_->pane().IsDescendant(FindFocus());
    reading_->showPane(!isShown);
    if (hadKeyboard) list_->focusList();
}

void MainWindow::showContextMenu(const wxPoint& place) {
    wxMenu menu;
    addClippingItems(menu);
    PopupMenu(&menu, ScreenToClient(place));
}

void MainWindow::showColumnMenu() {
    wxMenu menu;
    addColumnItems(menu);
    PopupMenu(&menu);
}

void MainWindow::showDays(const std::vector<DayLine>& days, const std::optional<Date>& chosen) {
    dates_->show(days, chosen);
}

void MainWindow::showDayText(const DayLine& day) {
    dates_->showText(day);
}

std::vector<Date> MainWindow::selectedDays() const {
    return dates_->selected();
}

void MainWindow::showClippings(const std::vector<ClippingRow>& rows) {
    rows_ = &rows;
    list_->show(rows);
}

void MainWindow::showMarks(std::size_t row) {
    list_->showMarks(row, rows_->at(row));
}

void MainWindow::showCounts(const CountTexts& texts) {
    StatusBar1_->showCounts(texts);
}

// A run says by itself what it is about, and its rows are awaited.
void MainWindow::showEmptyHint(const EmptyHint& hint) {
    if (!download_->isRunning()) list_->showHint(hint);
}

void MainWindow::showAlert(std::string_view text) {
    alert_->show(text);
}

void MainWindow::showAdvertisement(const std::string& path) {
    advertisement_->show(path);
}

void MainWindow::offerAdvertisement(bool wanted) {
    advertisement_->offer(wanted);
}

void MainWindow::showAlertIsNew(bool isNew) {
    alert_->showIsNew(isNew);
}

void MainWindow::showBusy(bool busy) {
    // A run refreshes the list several times a second: the pointer would flicker.
    if (busy && IsShown() && !download_->isRunning())
        busy_.emplace();
    else
        busy_.reset();
}

void MainWindow::showFilter(std::string_view text) {
    filter_->show(text);
}

void MainWindow::showOrder(const RowOrder& order) {
    list_->showOrder(order);
}

void MainWindow::showSeveralDays(bool several) {
    list_->columns().showDays(several);
}

void MainWindow::showStatus(std::string_view text) {
    StatusBar1_->showStatus(text);
}

void MainWindow::showLastRun(std::string_view text) {
    StatusBar1_->showLastRun(text);
}

void MainWindow::showNextRun(std::string_view text) {
    StatusBar1_->showNextRun(text);
    presence_.showNextRun(text);
}

// Also when one of its dialogs has the keyboard.
bool MainWindow::isLookedAt() const {
    return wxTheApp->IsActive();
}

void MainWindow::showNotice(const RunNotice& notice) {
    presence_.showNotice(notice);
}

void MainWindow::showProgress(int currentFile, int wholeRun) {
    progress_->show(currentFile, wholeRun);
}

void MainWindow::showForcedRun(ForcedRun state) {
    download_->show(state);
    if (state == ForcedRun::Running) list_->hideHint();
}

void MainWindow::showDateRange(const Date& from, const Date& to) {
    download_->showRange(from, to);
}

void MainWindow::displayInfoMessageBox(std::string_view text) {
    message_->note(text);
}

void MainWindow::showRunMessage(const std::optional<Message>& message) {
    if (message)
        message_->add(*message);
    else
        message_->forgetRun();
}

void MainWindow::openSetup() {
    if (events_.SetupWanted) events_.SetupWanted();
}

bool MainWindow::offersStop() const {
    return download_->isRunning();
}

bool MainWindow::takeTypedDays() {
    return download_->takeTyped();
}

void MainWindow::placeWindow(const WindowPlace& place) {
    vell::placeWindow(*this, place);
}

std::optional<WindowPlace> MainWindow::windowPlace() const {
    return placeOfWindow(*this);
}

}  // namespace vell
