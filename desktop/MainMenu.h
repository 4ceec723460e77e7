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
// The menu's keys, for a control that would take some of them for itself while it has the keyboard.
void addMenuKeys(wxWindow& around);
// What can be done with one clipping.
void addClippingItems(wxMenu& menu);

void forEachCommand(const std::function<void(int id)>& action);

}  // namespace vell
