// SPDX-License-Identifier: MIT
#include "desktop/MainMenu.h"

#include <array>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include <wx/accel.h>
#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/toolbar.h>

#include "desktop/commandIds.h"
#include "desktop/pictures.h"

namespace vell {

namespace {

enum class Menu { File, View, Sort, Download, Help };

struct Item {
    Menu In;
    int Id;
    const char* Label;       // with mnemonic and keys
    const char* Help;        // in the status bar
    bool Separated = false;  // from the one before it
};

constexpr std::array items{
    Item{Menu::File, command::Open, "&Open\tCtrl+O", "Open the selected clipping"},
    Item{Menu::File, command::OpenNext20, "Open &next 20\tCtrl+Shift+O", "Open the next 20 clippings not yet opened"},
    Item{Menu::File, command::OpenDayFolder, "Open day &folder\tCtrl+D", "Open the folder of the chosen day"},
    Item{Menu::File, command::PrintSelected, "&Print\tCtrl+P", "Print the selected clipping", true},
    Item{Menu::File, command::PrintAll, "Print &all...\tCtrl+Shift+P", "Print all clippings of the chosen day"},
    Item{Menu::File, command::PrintByCategory, "Print by &category...\tCtrl+Alt+P", "Print whole categories"},
    Item{Menu::File, command::StopPrinting, "S&top printing\tCtrl+Shift+T", "Stop before the next document"},
    Item{Menu::File, command::DeleteDay, "&Delete day...\tCtrl+Delete", "Delete the chosen day from the disk", true},
    Item{Menu::File, command::Exit, "E&xit\tCtrl+Q", "End the program", true},

    Item{Menu::View, command::Filter, "&Filter...\tCtrl+F", "Show only some categories and types"},
    Item{Menu::View, command::ShowAll, "Show a&ll\tCtrl+Shift+F", "Show every clipping of the day"},
    Item{Menu::View, command::AutoView, "&Auto view...\tF6", "Open clippings one after another"},
    Item{Menu::View, command::NewerDay, "&Newer day\tAlt+Up", "Show the next newer day", true},
    Item{Menu::View, command::OlderDay, "&Older day\tAlt+Down", "Show the next older day"},
    Item{Menu::View, command::GoToList, "&Go to the list\tCtrl+L", "Put the keyboard into the list of clippings"},
    Item{Menu::View, command::Refresh, "&Refresh\tF5", "Read the day again from the disk"},

    Item{Menu::Sort, command::SortByMarks, "&Opened and printed\tCtrl+1", "Sort by the marks; again: the other way"},
    Item{Menu::Sort, command::SortByNewspaper, "&Newspaper\tCtrl+2", "Sort by newspaper; again: the other way"},
    Item{Menu::Sort, command::SortByTitle, "&Title\tCtrl+3", "Sort by title; again: the other way"},
    Item{Menu::Sort, command::SortByType, "T&ype\tCtrl+4", "Sort by type; again: the other way"},

    Item{Menu::Download, command::Start, "&Start download\tF9", "Download the chosen days now"},
    Item{Menu::Download, command::Stop, "S&top download\tShift+F9", "Stop the download"},
    Item{Menu::Download, command::Schedule, "S&chedule...\tCtrl+Shift+S", "When downloads start by themselves", true},
    Item{Menu::Download, command::Setup, "Set&up...\tCtrl+,", "The settings of the program"},

    Item{Menu::Help, command::Help, "&Help\tF1", "Open the help page"},
    Item{Menu::Help, command::About, "&About Vell...", "The version of this program"},
};

struct Tool {
    int Id;
    Picture Shows;
    const char* Label;
    bool Separated = false;
};

constexpr std::array tools{
    Tool{command::Start, Picture::Start, "Download"},
    Tool{command::Stop, Picture::Stop, "Stop"},
    Tool{command::Open, Picture::Open, "Open", true},
    Tool{command::OpenNext20, Picture::OpenNext, "Next 20"},
    Tool{command::PrintSelected, Picture::Print, "Print", true},
    Tool{command::Filter, Picture::Filter, "Filter", true},
    Tool{command::AutoView, Picture::AutoView, "Auto view"},
    Tool{command::Schedule, Picture::Schedule, "Schedule", true},
    Tool{command::Setup, Picture::Setup, "Setup"},
};

std::unique_ptr<wxMenu> menuOf(Menu which) {
    auto menu = std::make_unique<wxMenu>();
    for (const Item& item : items) {
        if (item.In != which) continue;
        if (item.Separated) menu->AppendSeparator();
        menu->Append(item.Id, item.Label, item.Help);
    }
    return menu;
}

// The command's words, without mnemonic and keys.
wxString helpOf(int id) {
    for (const Item& item : items)
        if (item.Id == id) return item.Help;
    return {};
}

}  // namespace

void addMenuBar(wxFrame& frame) {
    auto view = menuOf(Menu::View);
    view->AppendSubMenu(menuOf(Menu::Sort).release(), "&Sort by");
    auto bar = std::make_unique<wxMenuBar>();
    bar->Append(menuOf(Menu::File).release(), "&File");
    bar->Append(view.release(), "&View");
    bar->Append(menuOf(Menu::Download).release(), "&Download");
    bar->Append(menuOf(Menu::Help).release(), "&Help");
    frame.SetMenuBar(bar.release());
}

void addToolBar(wxFrame& frame) {
    wxToolBar* bar = frame.CreateToolBar(wxTB_HORIZONTAL | wxTB_TEXT | wxTB_NODIVIDER);
    for (const Tool& tool : tools) {
        if (tool.Separated) bar->AddSeparator();
        bar->AddTool(tool.Id, tool.Label, toolPicture(tool.Shows), helpOf(tool.Id));
    }
    bar->Realize();
}

void addMenuKeys(wxWindow& around) {
    std::vector<wxAcceleratorEntry> keys;
    for (const Item& item : items) {
        const std::unique_ptr<wxAcceleratorEntry> key(wxAcceleratorEntry::Create(item.Label));
        if (key) keys.emplace_back(key->GetFlags(), key->GetKeyCode(), item.Id);
    }
    around.SetAcceleratorTable({static_cast<int>(keys.size()), keys.data()});
}

void addClippingItems(wxMenu& menu) {
    for (const Item& item : items)
        if (item.Id == command::Open || item.Id == command::PrintSelected || item.Id == command::OpenDayFolder)
            menu.Append(item.Id, item.Label, item.Help);
}

void forEachCommand(const std::function<void(int id)>& action) {
    for (const Item& item : items)
        action(item.Id);
}

}  // namespace vell
