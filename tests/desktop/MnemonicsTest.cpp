// SPDX-License-Identifier: MIT
#include <map>

#include <wx/button.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/stockitem.h>
#include <wx/utils.h>

#include "desktop/MainMenu.h"
#include "desktop/MainWindow.h"
#include "desktop/WxTranslations.h"
#include "desktop/dialogs/ScheduleDialog.h"
#include "desktop/dialogs/setup/SetupDialog.h"
#include "tests/desktop/ToolkitTest.h"
#include "tests/support/ScriptedBoxes.h"
#include "tests/support/SettingsRig.h"

namespace vell::test {
namespace {

// What Alt reaches with a letter, by that letter.
using Reached = std::map<wxUniChar, std::string>;

class MnemonicsTest : public ToolkitTest, public testing::WithParamInterface<const char*>, protected SettingsRig {
  protected:
    static void add(const wxString& label, Reached& reached) {
        const std::size_t at = label.find("&");
        if (at == wxString::npos || label.substr(at, 2) == "&&") return;
        std::string& there = reached[wxTolower(label[at + 1])];
        EXPECT_EQ(there, "") << "the letter of " << label;
        there = label.utf8_string();
    }
    static wxString labelOf(const wxWindow& control) {
        const wxString label = control.GetLabel();
        return label.empty() && wxIsStockID(control.GetId()) ? wxGetStockLabel(control.GetId()) : label;
    }
    // Of a window's own controls, then of each page that it has together with them.
    static void look(const wxWindow& window, Reached& reached) {
        const wxNotebook* book = nullptr;
        for (const wxWindow* child : window.GetChildren()) {
            if (const auto* found = dynamic_cast<const wxNotebook*>(child))
                book = found;
            else if (!child->IsTopLevel()) {
                add(labelOf(*child), reached);
                look(*child, reached);
            }
        }
        for (std::size_t page = 0; book && page < book->GetPageCount(); ++page) {
            Reached ofPage = reached;
            look(*book->GetPage(page), ofPage);
        }
    }
    static void look(const wxMenu& menu) {
        Reached reached;
        for (const wxMenuItem* item : menu.GetMenuItems()) {
            add(item->GetItemLabel(), reached);
            if (item->GetSubMenu()) look(*item->GetSubMenu());
        }
    }

    ScriptedBoxes boxes;
};

TEST_P(MnemonicsTest, noLetterStandsTwiceOnAPageOrInAMenu) {
    ASSERT_TRUE(wxSetEnv("LC_ALL", "C.UTF-8") && wxSetEnv("LANGUAGE", GetParam()));
    WxTranslations::open();
    EXPECT_EQ(_("Setup") == "Setup", std::string(GetParam()) == "en");
    auto* window = new MainWindow(clock, files);
    Reached reached;
    const wxMenuBar& bar = *window->GetMenuBar();
    for (std::size_t menu = 0; menu < bar.GetMenuCount(); ++menu) {
        add(bar.GetMenuLabel(menu), reached);
        look(*bar.GetMenu(menu));
    }
    look(*window, reached);
    EXPECT_GT(reached.size(), 6U);

    Reached ofSetup, ofSchedule;
    const SetupDialog setupDialog(window, frmSetup({setup, loader, ini, log, files, english, ""}), boxes, {});
    look(setupDialog, ofSetup);
    EXPECT_EQ(ofSetup.size(), 2U) << "OK and Cancel stand below every page";
    const ScheduleDialog scheduleDialog(window, frmSchedule(setup, ini, boxes, log, english));
    look(scheduleDialog, ofSchedule);
    EXPECT_EQ(ofSchedule.size(), 5U);
    window->Destroy();
}

INSTANTIATE_TEST_SUITE_P(InEachLanguage, MnemonicsTest, testing::Values("en", "el"));

}  // namespace
}  // namespace vell::test
