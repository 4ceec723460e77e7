// SPDX-License-Identifier: MIT
#include "desktop/MainWindow.h"

#include <algorithm>
#include <utility>

#include <wx/display.h>
#include <wx/menu.h>
#include <wx/panel.h>
#include <wx/sizer.h>

#include "desktop/MainMenu.h"
#include "desktop/list/ClippingsList.h"
#include "desktop/native/insistOnPlace.h"
#include "desktop/panes/Advertisement.h"
#include "desktop/panes/AlertPanel.h"
#include "desktop/panes/DatePane.h"
#include "desktop/panes/FilterBar.h"
#include "desktop/panes/ForcedDownloadPane.h"
#include "desktop/panes/MessageFrame.h"
#include "desktop/panes/ProgressPane.h"
#include "desktop/panes/StatusLine.h"
#include "desktop/pictures.h"
#include "desktop/screenText.h"
#include "desktop/twips.h"

namespace vell {

namespace {
const wxSize smallest(640, 560);  // DIP
constexpr int sideBarWidth = 250;

template <class Event, class... Arguments>
void tell(const Event& event, const Arguments&... arguments) {
    if (event) event(arguments...);
}

// A window that was left on a display which is gone would never be found again.
wxRect reachable(wxRect window) {
    constexpr int seizable = 40;  // enough of the title bar for the mouse
    const wxPoint title(window.GetLeft() + window.GetWidth() / 2, window.GetTop() + seizable / 2);
    if (wxDisplay::GetFromPoint(title) == wxNOT_FOUND) window.SetPosition(wxDisplay(0u).GetClientArea().GetPosition());
    return window;
}
}  // namespace

MainWindow::MainWindow(const Clock& clock, const Files& files) : wxFrame(nullptr, wxID_ANY, "Vell") {
    SetIcons(programIcons());
    addMenuBar(*this);
    addToolBar(*this);
    StatusBar1_ = new StatusLine(this);
    SetStatusBar(StatusBar1_);
    SetStatusBarPane(-1);  // the words for menu entries must not overwrite the status of a run
    addParts(clock, files);
    SetMinSize(FromDIP(smallest));
    bindCommands();
}

void MainWindow::addParts(const Clock& clock, const Files& files) {
    auto* all = new wxPanel(this);
    message_ = new MessageFrame(all);
    auto* columns = new wxBoxSizer(wxHORIZONTAL);
    columns->Add(sideBar(*all, files), wxSizerFlags().Expand().Border(wxALL));
    filter_ = new FilterBar(all);
    list_ =
        new ClippingsList(all, clock,
                          {[this](std::size_t row) { tell(events_.RowDoubleClicked, row); },
                           [this](std::size_t row) { tell(events_.RowEntered, row); }, [this] { showContextMenu(); }});
    addMenuKeys(*list_);  // GTK's list has uses of its own for Ctrl+F and Ctrl+P
    filter_->MoveAfterInTabOrder(dates_);
    list_->MoveAfterInTabOrder(filter_);
    auto* main = new wxBoxSizer(wxVERTICAL);
    main->Add(filter_, wxSizerFlags().Expand().Border(wxBOTTOM));
    main->Add(list_, wxSizerFlags(1).Expand());
    columns->Add(main, wxSizerFlags(1).Expand().Border(wxTOP | wxRIGHT | wxBOTTOM));
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(message_, wxSizerFlags().Expand());
    sizer->Add(columns, wxSizerFlags(1).Expand());
    all->SetSizer(sizer);
}

wxBoxSizer* MainWindow::sideBar(wxWindow& parent, const Files& files) {
    dates_ = new DatePane(&parent, [this](const Date& day) { tell(events_.DayChosen, day); });
    download_ = new ForcedDownloadPane(&parent, {[this](bool onlyToday) { tell(events_.RangeChosen, onlyToday); },
                                                 [this](const Date& from) { tell(events_.FromDateChanged, from); },
                                                 [this](const Date& to) { tell(events_.ToDateChanged, to); },
                                                 [this](const std::string& text) { tell(events_.DayMistyped, text); }});
    progress_ = new ProgressPane(&parent);
    alert_ = new AlertPanel(&parent);
    advertisement_ = new Advertisement(&parent, files);

    auto* bar = new wxBoxSizer(wxVERTICAL);
    bar->SetMinSize(FromDIP(wxSize(sideBarWidth, -1)));
    bar->Add(dates_, wxSizerFlags().Expand().DoubleBorder(wxBOTTOM));
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
            [this, id](wxUpdateUIEvent& event) { event.Enable(events_.IsEnabled && events_.IsEnabled(id)); }, id);
    });
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
        if (events_.Closing)
            events_.Closing(event.CanVeto());  // ends the process, in its own time
        else
            event.Skip();
    });
}

void MainWindow::showContextMenu() {
    wxMenu menu;
    addClippingItems(menu);
    PopupMenu(&menu);
}

void MainWindow::showDays(const std::vector<Date>& days, const std::optional<Date>& chosen) {
    dates_->show(days, chosen);
}

void MainWindow::showClippings(const std::vector<ClippingRow>& rows) {
    rows_ = &rows;
    list_->show(rows);
}

void MainWindow::showMarks(std::size_t row) {
    list_->showMarks(row, rows_->at(row));
}

void MainWindow::showCount(std::string_view text) {
    StatusBar1_->showCount(text);
}

void MainWindow::showAlert(std::string_view text) {
    alert_->show(text);
}

void MainWindow::showAdvertisement(const std::string& path) {
    advertisement_->show(path);
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

void MainWindow::showStatus(std::string_view text) {
    StatusBar1_->showStatus(text);
}

void MainWindow::showProgress(int currentFile, int wholeRun) {
    progress_->show(currentFile, wholeRun);
}

void MainWindow::showForcedRun(bool running) {
    download_->showRunning(running);
}

void MainWindow::showDateRange(const Date& from, const Date& to) {
    download_->showRange(from, to);
}

void MainWindow::displayInfoMessageBox(std::string_view text) {
    message_->show(text);
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
    const auto pixels = [this](int twips) { return pixelsFromTwips(*this, twips); };
    wxRect window(pixels(place.Left), pixels(place.Top), pixels(place.Width), pixels(place.Height));
    window.SetSize({std::max(window.GetWidth(), GetMinWidth()), std::max(window.GetHeight(), GetMinHeight())});
    window = reachable(window);
    SetSize(window);
    insistOnPlace(*this, window.GetPosition());
    if (place.NewspaperWidth > 0) list_->setColumnWidth(GridColumn::Newspaper, pixels(place.NewspaperWidth));
    if (place.TypeWidth > 0) list_->setColumnWidth(GridColumn::Type, pixels(place.TypeWidth));
}

std::optional<WindowPlace> MainWindow::windowPlace() const {
    if (IsIconized() || IsMaximized() || IsFullScreen()) return std::nullopt;
    const auto twips = [this](int pixels) { return twipsFromPixels(*this, pixels); };
    const wxRect window = GetRect();
    return WindowPlace{twips(window.GetTop()),
                       twips(window.GetLeft()),
                       twips(window.GetWidth()),
                       twips(window.GetHeight()),
                       twips(list_->chosenWidth(GridColumn::Newspaper).value_or(0)),
                       twips(list_->chosenWidth(GridColumn::Type).value_or(0))};
}

}  // namespace vell
