// SPDX-License-Identifier: MIT
#include "desktop/MainMenu.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include <wx/accel.h>
#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/toolbar.h>
#include <wx/translation.h>

#include "desktop/commandIds.h"
#include "desktop/pictures.h"

namespace vell {

namespace {

enum class Menu { File, Edit, View, Sort, Columns, Pane, Download, Help };

struct Item {
    Menu In;
    int Id;
    const char* Label;  // with mnemonic; English, as Help
    const char* Keys;   // empty for none
    const char* Help;   // in the tool's tip
    bool Separated;     // from the one before it
};

constexpr Item menuEntry(Menu in, int id, const char* label, const char* keys, const char* help,
                         bool separated = false) {
    return {in, id, label, keys, help, separated};
}

constexpr std::array items{
    menuEntry(Menu::File, command::Open, "&Open", "Ctrl+O", "Open the selected clippings"),
    menuEntry(Menu::File, command::OpenNext20, "Open &next 20", "Ctrl+Shift+O",
              "Open the next 20 clippings not yet opened"),
    menuEntry(Menu::File, command::OpenDayFolder, "Open day &folder", "Ctrl+D", "Open the folder of the chosen day"),
    menuEntry(Menu::File, command::SaveAs, "&Save as...", "Ctrl+S", "Save copies of the selected clippings elsewhere"),
    menuEntry(Menu::File, command::PrintSelected, "&Print", "Ctrl+P", "Print the selected clippings", true),
    menuEntry(Menu::File, command::PrintAll, "Print &all...", "Ctrl+Shift+P", "Print all clippings of the list"),
    menuEntry(Menu::File, command::PrintByCategory, "Print by &category...", "Ctrl+Alt+P", "Print whole categories"),
    menuEntry(Menu::File, command::StopPrinting, "S&top printing", "Ctrl+Shift+T", "Stop before the next document"),
    menuEntry(Menu::File, command::DeleteDay, "&Delete days...", "Ctrl+Delete",
              "Delete the selected days from the disk", true),
    menuEntry(Menu::File, command::Exit, "E&xit", "Ctrl+Q", "End the program", true),

    menuEntry(Menu::Edit, command::CopyFile, "&Copy file", "",
              "Copy the selected clippings for another folder or a mail"),
    menuEntry(Menu::Edit, command::CopyTitle, "Copy &title", "Ctrl+Shift+C",
              "Copy the titles of the selected clippings"),
    menuEntry(Menu::Edit, command::CopyText, "Copy te&xt", "", "Copy the texts of the selected clippings"),
    menuEntry(Menu::Edit, command::CopyPath, "Copy &path", "", "Copy where the selected clippings lie on the disk"),
    menuEntry(Menu::Edit, command::SelectAll, "Select &all", "", "Select all clippings of the list", true),
    menuEntry(Menu::Edit, command::MarkOpened, "&Mark as opened", "Ctrl+M",
              "Say that the selected clippings have been opened", true),
    menuEntry(Menu::Edit, command::MarkNotOpened, "Mark as &not opened", "Ctrl+Shift+M",
              "Say that the selected clippings have not been opened"),

    menuEntry(Menu::View, command::Find, "F&ind", "Ctrl+F", "Show only clippings that have the words you type"),
    menuEntry(Menu::View, command::Filter, "&Filter...", "Ctrl+Shift+F", "Show only some categories and types"),
    menuEntry(Menu::View, command::ShowAll, "Show a&ll", "Ctrl+Shift+L", "Show every clipping of the day"),
    menuEntry(Menu::View, command::AutoView, "&Auto view...", "F6", "Open clippings one after another"),
    menuEntry(Menu::View, command::NewerDay, "&Newer day", "Alt+Up", "Show the next newer day", true),
    menuEntry(Menu::View, command::OlderDay, "&Older day", "Alt+Down", "Show the next older day"),
    menuEntry(Menu::View, command::GoToList, "&Go to the list", "Ctrl+L",
              "Put the keyboard into the list of clippings"),
    menuEntry(Menu::View, command::ShowAdvertisement, "Show a&dvertisement", "", "Leave room for the advertisement",
              true),
    menuEntry(Menu::View, command::ShowTrayIcon, "Icon in &the notification area", "",
              "Show the program beside the desktop's clock"),
    menuEntry(Menu::View, command::GoToMessage, "Go to the &message", "F8",
              "Put the keyboard into the bar of messages"),
    menuEntry(Menu::View, command::Refresh, "&Refresh", "F5", "Read the day again from the disk"),

    menuEntry(Menu::Sort, command::SortByMarks, "&Opened and printed", "Ctrl+1",
              "Sort by the marks; again: the other way"),
    menuEntry(Menu::Sort, command::SortByNewspaper, "&Newspaper", "Ctrl+2", "Sort by newspaper; again: the other way"),
    menuEntry(Menu::Sort, command::SortByTitle, "&Title", "Ctrl+3", "Sort by title; again: the other way"),
    menuEntry(Menu::Sort, command::SortByType, "T&ype", "Ctrl+4", "Sort by type; again: the other way"),
    menuEntry(Menu::Sort, command::SortByCategory, "&Category", "", "Sort by category; again: the other way"),
    menuEntry(Menu::Sort, command::SortByPage, "&Page", "", "Sort by page; again: the other way"),
    menuEntry(Menu::Sort, command::SortByFile, "&File", "", "Sort by file; again: the other way"),

    menuEntry(Menu::Columns, command::SeeNewspaper, "&Newspaper", "", "Show the newspapers in the list"),
    menuEntry(Menu::Columns, command::SeeType, "T&ype", "", "Show the types in the list"),
    menuEntry(Menu::Columns, command::SeeCategory, "&Category", "", "Show the categories in the list"),
    menuEntry(Menu::Columns, command::SeePage, "&Page", "", "Show the pages in the list"),
    menuEntry(Menu::Columns, command::SeeFile, "&File", "", "Show the names of the files in the list"),

    menuEntry(Menu::Pane, command::PaneBelow, "&Below the list", "Ctrl+Alt+1",
              "Show the text of the clipping below the list"),
    menuEntry(Menu::Pane, command::PaneBeside, "Be&side the list", "Ctrl+Alt+2",
              "Show the text of the clipping beside the list"),
    menuEntry(Menu::Pane, command::PaneOff, "&Off", "Ctrl+Alt+0", "Show no text"),

    menuEntry(Menu::Download, command::Start, "&Start download", "F9", "Download the chosen days now"),
    menuEntry(Menu::Download, command::Stop, "S&top download", "Shift+F9", "Stop the download"),
    menuEntry(Menu::Download, command::TryAgain, "Try &again", "Ctrl+R", "Fetch what has failed once more", true),
    menuEntry(Menu::Download, command::ShowFailedFiles, "&Failed files...", "Ctrl+Shift+R",
              "The files that have not come, and why"),
    menuEntry(Menu::Download, command::Schedule, "S&chedule...", "Ctrl+Shift+S", "When downloads start by themselves",
              true),
    menuEntry(Menu::Download, command::Setup, "Set&up...", "Ctrl+,", "The settings of the program"),

    menuEntry(Menu::Help, command::Help, "&Help", "F1", "Open the help page"),
    menuEntry(Menu::Help, command::CheckUpdate, "Check for &updates", "", "Ask the service for a newer version"),
    menuEntry(Menu::Help, command::About, "&About Vell...", "", "The version of this program"),
};

// The entries that are on or off.
constexpr std::array switches{
    command::ShowAdvertisement,
    command::ShowTrayIcon,
};

// In the menu of the list itself.
constexpr std::array<int, 13> forClippings{
    command::Open,          command::PrintSelected, command::SaveAs,        wxID_SEPARATOR, command::CopyFile,
    command::CopyTitle,     command::CopyText,      command::CopyPath,      wxID_SEPARATOR, command::MarkOpened,
    command::MarkNotOpened, wxID_SEPARATOR,         command::OpenDayFolder,
};

struct Tool {
    int Id;
    Picture Shows;
    const char* Label;  // English
    bool Separated;
};

constexpr Tool toolEntry(int id, Picture shows, const char* label, bool separated = false) {
    return {id, shows, label, separated};
}

constexpr std::array tools{
    toolEntry(command::Start, Picture::Start, "Download"),
    toolEntry(command::Stop, Picture::Stop, "Stop"),
    toolEntry(command::Open, Picture::Open, "Open", true),
    toolEntry(command::OpenNext20, Picture::OpenNext, "Next 20"),
    toolEntry(command::PrintSelected, Picture::Print, "Print", true),
    toolEntry(command::Filter, Picture::Filter, "Filter", true),
    toolEntry(command::AutoView, Picture::AutoView, "Auto view"),
    toolEntry(command::Schedule, Picture::Schedule, "Schedule", true),
    toolEntry(command::Setup, Picture::Setup, "Setup"),
};

// With mnemonic and keys, as a menu wants it.
wxString labelOf(const Item& item) {
    return wxGetTranslation(item.Label) + '\t' + item.Keys;
}

wxItemKind kindOf(const Item& item) {
    if (item.In == Menu::Pane) return wxITEM_RADIO;
    if (item.In == Menu::Columns) return wxITEM_CHECK;
    return std::ranges::find(switches, item.Id) != switches.end() ? wxITEM_CHECK : wxITEM_NORMAL;
}

void addItems(wxMenu& menu, Menu which) {
    for (const Item& item : items) {
        if (item.In != which) continue;
        if (item.Separated) menu.AppendSeparator();
        menu.Append(item.Id, labelOf(item), wxGetTranslation(item.Help), kindOf(item));
    }
}

std::unique_ptr<wxMenu> menuOf(Menu which) {
    auto menu = std::make_unique<wxMenu>();
    addItems(*menu, which);
    return menu;
}

// Each column under the name that Sort by has for it.
std::unique_ptr<wxMenu> columnMoves(int first) {
    auto menu = std::make_unique<wxMenu>();
    for (const Item& item : items)
        if (item.In == Menu::Sort) menu->Append(first++, wxGetTranslation(item.Label));
    return menu;
}

// The command's words, without mnemonic and keys.
wxString helpOf(int id) {
    for (const Item& item : items)
        if (item.Id == id) return wxGetTranslation(item.Help);
    return {};
}

}  // namespace

void addMenuBar(wxFrame& frame) {
    auto view = menuOf(Menu::View);
    view->AppendSubMenu(menuOf(Menu::Sort).release(), _("&Sort by"));
    auto columns = std::make_unique<wxMenu>();
    addColumnItems(*columns);
    view->AppendSubMenu(columns.release(), _("Col&umns"));
    view->AppendSubMenu(menuOf(Menu::Pane).release(), _("Reading &pane"));
    auto bar = std::make_unique<wxMenuBar>();
    bar->Append(menuOf(Menu::File).release(), _("&File"));
    bar->Append(menuOf(Menu::Edit).release(), _("&Edit"));
    bar->Append(view.release(), _("&View"));
    bar->Append(menuOf(Menu::Download).release(), _("&Download"));
    bar->Append(menuOf(Menu::Help).release(), _("&Help"));
    frame.SetMenuBar(bar.release());
}

void addToolBar(wxFrame& frame) {
    wxToolBar* bar = frame.CreateToolBar(wxTB_HORIZONTAL | wxTB_TEXT | wxTB_NODIVIDER);
    for (const Tool& tool : tools) {
        if (tool.Separated) bar->AddSeparator();
        bar->AddTool(tool.Id, wxGetTranslation(tool.Label), toolPicture(tool.Shows), helpOf(tool.Id));
    }
    bar->Realize();
}

void addMenuKeys(wxWindow& around) {
    std::vector<wxAcceleratorEntry> keys;
    for (const Item& item : items) {
        const std::unique_ptr<wxAcceleratorEntry> key(wxAcceleratorEntry::Create(labelOf(item)));
        if (key) keys.emplace_back(key->GetFlags(), key->GetKeyCode(), item.Id);
    }
    keys.emplace_back(wxACCEL_CTRL, 'C', command::CopyFile);
    around.SetAcceleratorTable({static_cast<int>(keys.size()), keys.data()});
}

void addClippingItems(wxMenu& menu) {
    for (const int id : forClippings) {
        const auto item = std::ranges::find(items, id, &Item::Id);
        if (item == items.end())
            menu.AppendSeparator();
        else
            menu.Append(id, labelOf(*item), wxGetTranslation(item->Help));
    }
}

void addColumnItems(wxMenu& menu) {
    addItems(menu, Menu::Columns);
    menu.AppendSeparator();
    menu.AppendSubMenu(columnMoves(command::MoveLeft).release(), _("Move &left"));
    menu.AppendSubMenu(columnMoves(command::MoveRight).release(), _("Move &right"));
}

void forEachCommand(const std::function<void(int id)>& action) {
    for (const Item& item : items)
        action(item.Id);
    for (int id = command::MoveLeft; id <= command::LastMoveRight; ++id)
        action(id);
}

}  // namespace vell
