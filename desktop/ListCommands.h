// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "desktop/CommandTable.h"
#include "ui/list/GridColumns.h"
#include "ui/list/ListLayout.h"

namespace vell {

class MainWindow;
class OpenDialogs;
class ViewSettings;
class frmMain;
struct Reading;

// The commands for the list and the rows that are selected in it.
class ListCommands {
  public:
    ListCommands(frmMain& program, MainWindow& window, OpenDialogs& dialogs);

    void addTo(CommandTable& table);

    // The columns and the sorting are kept from one session to the next.
    void showKeptLooks();
    void keepLooks();
    void sortBy(GridColumn column);

  private:
    using Rows = std::vector<std::size_t>;
    void addColumns(CommandTable& table);
    void change(const std::function<void(ListLayout& layout)>& how);
    void wantPages();
    [[nodiscard]] Command onSelected(void (ListCommands::*action)(const Rows& rows));

    void open(const Rows& rows);
    void print(const Rows& rows);
    void markOpened(const Rows& rows);
    void markNotOpened(const Rows& rows);
    void copyFile(const Rows& rows);
    void copyTitle(const Rows& rows);
    void copyClippingText(const Rows& rows);
    void copyPath(const Rows& rows);
    void saveAs(const Rows& rows);
    void saveOne(const std::string& clipping);
    void saveSeveral(const std::vector<std::string>& clippings);
    template <class SystemDialog>
    void openToSave(SystemDialog* dialog, const std::function<void(const std::string& place)>& save);

    Reading& reading_;
    ViewSettings& kept_;
    MainWindow& window_;
    OpenDialogs& dialogs_;
};

}  // namespace vell
