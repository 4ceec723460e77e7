// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class wxFrame;
class wxMenu;
class wxWindow;

namespace vell {

// The menu bar and the toolbar, from one table of commands. Every command stands in the menu, with its keys.
void addMenuBar(wxFrame& frame);
void addToolBar(wxFrame& frame);
// The menu's keys, for a list that would take some of them for itself while it has the keyboard, and Ctrl+C, which
// copies files here and text in a text box.
void addMenuKeys(wxWindow& around);
// What can be done with the selected clippings.
void addClippingItems(wxMenu& menu);
// Which columns the list has.
void addColumnItems(wxMenu& menu);

void forEachCommand(const std::function<void(int id)>& action);

}  // namespace vell
