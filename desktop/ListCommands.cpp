// SPDX-License-Identifier: MIT
#include "desktop/ListCommands.h"

#include <wx/dirdlg.h>
#include <wx/filedlg.h>
#include <wx/translation.h>

#include "app/frmMain.h"
#include "desktop/MainWindow.h"
#include "desktop/commandIds.h"
#include "desktop/dialogs/OpenDialogs.h"
#include "desktop/list/ClippingsList.h"
#include "desktop/list/clipboard.h"
#include "desktop/native/whenAccepted.h"

namespace vell {

ListCommands::ListCommands(frmMain& program, MainWindow& window, OpenDialogs& dialogs)
    : reading_(program.reading()), kept_(program.viewSettings()), window_(window), dialogs_(dialogs) {}

void ListCommands::addTo(CommandTable& table) {
    const auto hasRows = [this] { return !reading_.Browser.rows().empty(); };
    table[command::Open] = onSelected(&ListCommands::open);
    table[command::PrintSelected] = onSelected(&ListCommands::print);
    table[command::SaveAs] = onSelected(&ListCommands::saveAs);
    table[command::MarkOpened] = onSelected(&ListCommands::markOpened);
    table[command::MarkNotOpened] = onSelected(&ListCommands::markNotOpened);
    table[command::CopyFile] = onSelected(&ListCommands::copyFile);
    table[command::CopyTitle] = onSelected(&ListCommands::copyTitle);
    table[command::CopyText] = onSelected(&ListCommands::copyClippingText);
    table[command::CopyPath] = onSelected(&ListCommands::copyPath);
    table[command::SelectAll] = {[this] { window_.list().selectAll(); }, hasRows};
    const auto addSorting = [this, &table, hasRows](int id, GridColumn column) {
        table[id] = {[this, column] { sortBy(column); }, hasRows};
    };
    addSorting(command::SortByMarks, GridColumn::Marks);
    addSorting(command::SortByNewspaper, GridColumn::Newspaper);
    addSorting(command::SortByTitle, GridColumn::Title);
    addSorting(command::SortByType, GridColumn::Type);
    addSorting(command::SortByCategory, GridColumn::Category);
    addSorting(command::SortByPage, GridColumn::Page);
    addSorting(command::SortByFile, GridColumn::File);
    addColumns(table);
}

void ListCommands::addColumns(CommandTable& table) {
    for (std::size_t i = 0; i < optionalColumns.size(); ++i) {
        const GridColumn column = optionalColumns.at(i);
        table[command::SeeNewspaper + static_cast<int>(i)] = {
            [this, column] {
                change([column](ListLayout& layout) { toggle(layout, column); });
                wantPages();
            },
            [] { return true; }, [this, column] { return isSeen(window_.list().columns().layout(), column); }};
    }
    const auto addMove = [this, &table](int id, GridColumn column, int places) {
        table[id] = {[this, column, places] {
                         change([column, places](ListLayout& layout) { moveColumn(layout, column, places); });
                     },
                     [this, column, places] { return canMove(window_.list().columns().layout(), column, places); }};
    };
    for (std::size_t i = 0; i < movableColumns.size(); ++i) {
        addMove(command::MoveLeft + static_cast<int>(i), movableColumns.at(i), -1);
        addMove(command::MoveRight + static_cast<int>(i), movableColumns.at(i), 1);
    }
}

void ListCommands::change(const std::function<void(ListLayout& layout)>& how) {
    ListLayout layout = window_.list().columns().layout();
    how(layout);
    window_.list().columns().arrange(layout);
    keep(kept_, layout);
}

void ListCommands::showKeptLooks() {
    window_.list().columns().arrange(keptListLayout(kept_));
    wantPages();
}

void ListCommands::keepLooks() {
    keep(kept_, window_.list().columns().layout());
}

void ListCommands::sortBy(GridColumn column) {
    reading_.Browser.sortBy(column);
    keep(kept_, reading_.Browser.order());
    wantPages();
}

void ListCommands::wantPages() {
    reading_.Pages.want(isSeen(window_.list().columns().layout(), GridColumn::Page) ||
                        reading_.Browser.order().Column == GridColumn::Page);
}

Command ListCommands::onSelected(void (ListCommands::*action)(const Rows& rows)) {
    return {[this, action] { (this->*action)(window_.list().selectedRows()); },
            [this] { return window_.list().hasSelection(); }};
}

void ListCommands::open(const Rows& rows) {
    reading_.Opening.openRows(rows);
}

void ListCommands::print(const Rows& rows) {
    reading_.Printing.printRows(rows);
}

void ListCommands::markOpened(const Rows& rows) {
    reading_.Opening.markRows(rows, true);
}

void ListCommands::markNotOpened(const Rows& rows) {
    reading_.Opening.markRows(rows, false);
}

void ListCommands::copyFile(const Rows& rows) {
    copyFiles(reading_.Copies.paths(rows), reading_.Copies.titles(rows));
}

void ListCommands::copyTitle(const Rows& rows) {
    copyText(reading_.Copies.titles(rows));
}

void ListCommands::copyClippingText(const Rows& rows) {
    if (const std::string text = reading_.Copies.texts(rows); !text.empty()) copyText(text);
}

void ListCommands::copyPath(const Rows& rows) {
    copyLines(reading_.Copies.paths(rows));
}

// What is saved are the clippings of now: the list may be another one when the dialog is closed.
void ListCommands::saveAs(const Rows& rows) {
    const std::vector<std::string> clippings = reading_.Browser.pathsOf(rows);
    if (clippings.size() == 1)
        saveOne(clippings.front());
    else
        saveSeveral(clippings);
}

void ListCommands::saveOne(const std::string& clipping) {
    const wxString name = wxString::FromUTF8(ClippingSaving::proposedName(clipping));
    openToSave(new wxFileDialog(&window_, _("Save as"), "", name, wxFileSelectorDefaultWildcardStr,
                                wxFD_SAVE | wxFD_OVERWRITE_PROMPT),
               [this, clipping](const std::string& place) { reading_.Saving.saveAs(clipping, place); });
}

void ListCommands::saveSeveral(const std::vector<std::string>& clippings) {
    openToSave(new wxDirDialog(&window_, _("Save the clippings in")),
               [this, clippings](const std::string& folder) { reading_.Saving.saveAll(clippings, folder); });
}

// Saving may ask something, which the dialog's own handler must not wait for.
template <class SystemDialog>
void ListCommands::openToSave(SystemDialog* dialog, const std::function<void(const std::string& place)>& save) {
    whenAccepted(*dialog, [this, dialog, save] {
        window_.CallAfter([save, place = dialog->GetPath().utf8_string()] { save(place); });
    });
    dialogs_.open(dialog);
}

}  // namespace vell
