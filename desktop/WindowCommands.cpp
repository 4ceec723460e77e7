// SPDX-License-Identifier: MIT
#include "desktop/WindowCommands.h"

#include <utility>

#include "app/frmMain.h"
#include "base/ScopedFlag.h"
#include "desktop/MainWindow.h"
#include "desktop/commandIds.h"
#include "desktop/dialogs/AboutDialog.h"
#include "desktop/dialogs/FilterDialog.h"
#include "desktop/dialogs/PrintDialog.h"
#include "desktop/dialogs/ScheduleDialog.h"
#include "desktop/dialogs/SetupDialog.h"
#include "desktop/list/ClippingsList.h"

namespace vell {

WindowCommands::WindowCommands(frmMain& program, MainWindow& window, MessageBoxes& boxes, std::function<void()> end)
    : program_(program), window_(window), boxes_(boxes), end_(std::move(end)) {
    addClippingCommands();
    addDayCommands();
    addProgramCommands();
    window_.listenTo(*this);
    window_.onOpenSetup([this] { setUpAndWait(); });
}

void WindowCommands::addClippingCommands() {
    const auto hasRows = [this] { return !program_.browser().rows().empty(); };
    const auto canPrint = [this, hasRows] { return hasRows() && !program_.printing().isPrinting(); };
    const auto onRow = [this](auto action) {
        return [this, action] {
            if (const auto row = window_.list().currentRow()) action(*row);
        };
    };
    const auto sortBy = [this](GridColumn column) { return [this, column] { window_.list().sortBy(column); }; };
    table_[command::Open] = {onRow([this](std::size_t row) { program_.opening().openRow(row); }), hasRows};
    table_[command::OpenNext20] = {[this] { program_.opening().openNext20(); }, hasRows};
    table_[command::PrintSelected] = {onRow([this](std::size_t row) { program_.printing().mnuPrintSel_Click(row); }),
                                      hasRows};
    table_[command::PrintAll] = {[this] { program_.printing().mnuPrintAll_Click(); }, canPrint};
    table_[command::PrintByCategory] = {[this] { printByCategory(); }, canPrint};
    table_[command::AutoView] = {[this] { showAutoView(); }, hasRows};
    table_[command::SortByMarks] = {sortBy(GridColumn::Marks), hasRows};
    table_[command::SortByNewspaper] = {sortBy(GridColumn::Newspaper), hasRows};
    table_[command::SortByTitle] = {sortBy(GridColumn::Title), hasRows};
    table_[command::SortByType] = {sortBy(GridColumn::Type), hasRows};
}

void WindowCommands::addDayCommands() {
    const auto hasDay = [this] { return program_.browser().chosenDay().has_value(); };
    table_[command::OpenDayFolder] = {[this] { program_.opening().openDayFolder(); }, hasDay};
    table_[command::DeleteDay] = {[this] { program_.dayCommands().mnuDeleteDay_Click(); },
                                  [this, hasDay] { return hasDay() && !program_.isBusy(); }};
    table_[command::NewerDay] = {[this] { program_.dayCommands().chooseNewer(); }, hasDay};
    table_[command::OlderDay] = {[this] { program_.dayCommands().chooseOlder(); }, hasDay};
    table_[command::Filter] = {[this] { chooseFilter(); }, hasDay};
    table_[command::ShowAll] = {[this] { program_.browser().setFilter({}); },
                                [this] { return program_.browser().filter().isSet(); }};
}

void WindowCommands::addProgramCommands() {
    const auto always = [] { return true; };
    table_[command::Start] = {[this] { download(); }, [this] { return !downloading_ && !program_.isBusy(); }};
    table_[command::Stop] = {[this] { program_.cmdStopDownload_Click(); },
                             [this] { return program_.isBusy() || window_.followsRun(); }};
    table_[command::Setup] = {[this] { setUp(); }, always};
    table_[command::Schedule] = {[this] { dialogs_.open(new ScheduleDialog(&window_, program_.scheduleDialog())); },
                                 always};
    table_[command::Refresh] = {[this] { program_.dayCommands().reload(); }, always};
    table_[command::GoToList] = {[this] { window_.list().focusList(); }, always};
    table_[command::Help] = {[this] { program_.opening().openHelp(); }, always};
    table_[command::About] = {[this] { showAbout(); }, always};
    table_[command::Exit] = {[this] { window_.Close(); }, always};
}

void WindowCommands::printByCategory() {
    dialogs_.open(new PrintDialog(&window_, program_.printing().mnuPrintByCategory_Click()));
}

void WindowCommands::chooseFilter() {
    dialogs_.open(new FilterDialog(&window_, frmFilter(program_.browser())));
}

void WindowCommands::showAutoView() {
    if (!autoView_)
        autoView_ = new AutoViewWindow(&window_, program_.autoView(), [this] {
            if (const auto row = window_.list().currentRow()) program_.autoView().start(*row);
        });
    autoView_->Show();
    autoView_->Raise();
}

void WindowCommands::setUp() {
    dialogs_.open(new SetupDialog(&window_, program_.setupDialog(), boxes_, program_.dialUpNames()),
                  [this] { program_.dayCommands().reload(); });
}

// For a run that cannot go on without the settings.
void WindowCommands::setUpAndWait() {
    if (SetupDialog(&window_, program_.setupDialog(), boxes_, program_.dialUpNames()).ShowModal() == wxID_OK)
        program_.dayCommands().reload();
}

void WindowCommands::showAbout() {
    const std::string address = program_.settings().Host.empty() ? "" : "http://" + program_.settings().Host + "/";
    dialogs_.open(new AboutDialog(&window_, program_.version(), address,
                                  [this, address] { program_.opening().openAddress(address); }));
}

void WindowCommands::download() {
    const ScopedFlag downloading(downloading_);
    program_.mnuForceDownload_Click();
}

void WindowCommands::commandChosen(int id) {
    if (isEnabled(id)) table_.at(id).Run();
}

bool WindowCommands::isEnabled(int id) const {
    const auto entry = table_.find(id);
    return entry != table_.end() && entry->second.CanRun();
}

void WindowCommands::dayChosen(const Date& day) {
    program_.browser().chooseDay(day);
}

void WindowCommands::rowDoubleClicked(std::size_t row) {
    program_.opening().grdLocalFiles_DblClick(row);
}

void WindowCommands::rowEntered(std::size_t row) {
    program_.opening().openRow(row);
}

void WindowCommands::rangeChosen(bool onlyToday) {
    if (onlyToday)
        program_.chooseToday();
    else
        program_.chooseOtherFrom();
}

void WindowCommands::fromDateChanged(const Date& from) {
    program_.dtFromDate_Change(from);
}

void WindowCommands::toDateChanged(const Date& to) {
    program_.dtToDate_Change(to);
}

void WindowCommands::closing(bool mayBeRefused) {
    if (mayBeRefused && dialogs_.raise()) return;
    if (std::exchange(closing_, true)) return;  // the end may ask the user something, who may close once more
    program_.Form_Unload();
    end_();
}

}  // namespace vell
