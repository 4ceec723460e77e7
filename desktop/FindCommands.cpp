// SPDX-License-Identifier: MIT
// What the user does to see only some of the clippings.
#include "app/frmMain.h"
#include "config/ViewSettings.h"
#include "desktop/MainWindow.h"
#include "desktop/WindowCommands.h"
#include "desktop/bars/FindBar.h"
#include "desktop/commandIds.h"
#include "desktop/list/ClippingsList.h"
#include "desktop/reading/ReadingSplitter.h"
#include "desktop/reading/TextPane.h"

namespace vell {

namespace {
constexpr std::string_view inTextsKey = "FindInTexts";
}

void WindowCommands::addFindCommands() {
    Finder& finder = program_.reading().Find;
    ClippingsBrowser& browser = program_.reading().Browser;
    table_[command::Find] = {[this] { window_.find().focusBox(); }, [] { return true; }};
    table_[command::ShowAll] = {[this, &browser] {
                                    endFinding();
                                    browser.setFilter({});
                                },
                                [&] { return finder.isSet() || browser.filter().isSet(); }};
    finder.showIn(&window_.find());
    window_.find().listenTo({.Typed = [this](const std::string& text) { find(text); },
                             .InTextsChosen =
                                 [this, &finder](bool inTexts) {
                                     program_.viewSettings().keepFlag(inTextsKey, inTexts);
                                     finder.setInTexts(inTexts);
                                 },
                             .InAllDaysChosen = [&](bool inAllDays) { finder.setInAllDays(inAllDays); },
                             .Left = [this] { window_.list().focusList(); },
                             .Finished =
                                 [this] {
                                     endFinding();
                                     window_.list().focusList();
                                 }});
}

void WindowCommands::find(const std::string& text) {
    Finder& finder = program_.reading().Find;
    finder.setTyped(text);
    window_.reading().pane().showFound(finder.query());
}

void WindowCommands::endFinding() {
    program_.reading().Find.clear();
    window_.reading().pane().showFound({});
}

void WindowCommands::showChosenFinding() {
    const bool inTexts = program_.viewSettings().flag(inTextsKey, true);
    window_.find().showInTexts(inTexts);
    program_.reading().Find.setInTexts(inTexts);
}

}  // namespace vell
