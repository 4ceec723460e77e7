// SPDX-License-Identifier: MIT
// What the user does with the pane that shows the text of a clipping.
#include "app/frmMain.h"
#include "desktop/MainWindow.h"
#include "desktop/WindowCommands.h"
#include "desktop/commandIds.h"
#include "desktop/list/ClippingsList.h"
#include "desktop/reading/ReadingSplitter.h"
#include "desktop/reading/TextPane.h"

namespace vell {

void WindowCommands::addReadingCommands() {
    const auto choose = [this](PanePlace place) {
        return Command{[this, place] {
                           ReadingLayout(program_.viewSettings()).setPlace(place);
                           showReadingPane();
                       },
                       [] { return true; },
                       [this, place] { return ReadingLayout(program_.viewSettings()).place() == place; }};
    };
    table_[command::PaneBelow] = choose(PanePlace::Below);
    table_[command::PaneBeside] = choose(PanePlace::Beside);
    table_[command::PaneOff] = choose(PanePlace::Off);
    window_.reading().onSized([this](int twips) { ReadingLayout(program_.viewSettings()).setSize(twips); });
    window_.reading().pane().listenTo({.PagedOn = [this] { readOn(); },
                                       .Entered = [this] { commandChosen(command::Open); },
                                       .LeftBack = [this] { window_.list().focusList(); }});
}

void WindowCommands::showReadingPane() {
    const ReadingLayout layout(program_.viewSettings());
    window_.reading().place(layout.place(), layout.size());
    program_.reading().Text.showIn(layout.place() == PanePlace::Off ? nullptr : &window_.reading().pane());
}

void WindowCommands::showText() {
    const auto& rows = program_.reading().Browser.rows();
    const auto row = window_.list().currentRow();
    program_.reading().Text.show(row && *row < rows.size() ? rows[*row].File : nullptr);
}

// To the next page of the text, or behind its end to the next clipping. False when there is no text to read on in.
bool WindowCommands::readOn() {
    if (!window_.reading().IsSplit()) return false;
    const auto row = window_.list().currentRow();
    if (window_.reading().pane().pageOn() || program_.reading().Text.isReading() || !row) return true;
    if (*row + 1 < program_.reading().Browser.rows().size()) window_.list().selectRow(*row + 1);
    return true;
}

}  // namespace vell
