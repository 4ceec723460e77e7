// SPDX-License-Identifier: MIT
#include "desktop/WindowCommands.h"

#include <utility>

#include "app/frmMain.h"
#include "desktop/ClippingsList.h"
#include "desktop/MainWindow.h"
#include "desktop/commandIds.h"
#include "ui/ScopedFlag.h"

namespace vell {

WindowCommands::WindowCommands(frmMain& program, MainWindow& window, std::function<void()> end)
    : program_(program), window_(window), end_(std::move(end)) {
    fillTable();
    window_.listenTo(*this);
}

void WindowCommands::fillTable() {
    const auto always = [] { return true; };
    const auto hasRows = [this] { return !program_.browser().rows().empty(); };
    const auto hasDay = [this] { return !program_.browser().chosenDay().empty(); };
    const auto canPrint = [this, hasRows] { return hasRows() && !program_.printing().isPrinting(); };
    const auto onRow = [this](auto action) {
        return [this, action] {
            if (const auto row = window_.list().currentRow()) action(*row);
        };
    };
    table_ = {
        {command::Open, {onRow([this](std::size_t row) { program_.opening().openRow(row); }), hasRows}},
        {command::OpenNext20, {[this] { program_.opening().openNext20(); }, hasRows}},
        {command::OpenDayFolder, {[this] { program_.opening().openDayFolder(); }, hasDay}},
        {command::PrintSelected,
         {onRow([this](std::size_t row) { program_.printing().mnuPrintSel_Click(row); }), hasRows}},
        {command::PrintAll, {[this] { program_.printing().mnuPrintAll_Click(); }, canPrint}},
        {command::DeleteDay,
         {[this] { program_.dayCommands().mnuDeleteDay_Click(); },
          [this, hasDay] { return hasDay() && !program_.isBusy(); }}},
        {command::Exit, {[this] { window_.Close(); }, always}},
        {command::NewerDay, {[this] { program_.dayCommands().chooseNewer(); }, hasDay}},
        {command::OlderDay, {[this] { program_.dayCommands().chooseOlder(); }, hasDay}},
        {command::GoToList, {[this] { window_.list().focusList(); }, always}},
        {command::Refresh, {[this] { program_.browser().refresh(); }, always}},
        {command::SortByMarks, {[this] { window_.list().sortBy(GridColumn::Marks); }, always}},
        {command::SortByNewspaper, {[this] { window_.list().sortBy(GridColumn::Newspaper); }, always}},
        {command::SortByTitle, {[this] { window_.list().sortBy(GridColumn::Title); }, always}},
        {command::SortByType, {[this] { window_.list().sortBy(GridColumn::Type); }, always}},
        {command::Start, {[this] { download(); }, [this] { return !downloading_ && !program_.isBusy(); }}},
        {command::Stop,
         {[this] { program_.cmdStopDownload_Click(); }, [this] { return program_.isBusy() || window_.followsRun(); }}},
        {command::Help, {[this] { program_.opening().openHelp(); }, always}},
    };
}

void WindowCommands::download() {
    const ScopedFlag downloading(downloading_);
    program_.mnuForceDownload_Click();
}

void WindowCommands::commandChosen(int id) {
    const auto entry = table_.find(id);
    if (entry != table_.end() && entry->second.CanRun()) entry->second.Run();
}

bool WindowCommands::isEnabled(int id) const {
    const auto entry = table_.find(id);
    return entry != table_.end() && entry->second.CanRun();
}

void WindowCommands::dayChosen(const std::string& dayName) {
    program_.browser().chooseDay(dayName);
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

void WindowCommands::closing() {
    program_.Form_Unload();
    end_();
}

}  // namespace vell
