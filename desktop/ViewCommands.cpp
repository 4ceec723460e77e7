// SPDX-License-Identifier: MIT
// The commands that change how the window looks, which is kept.
#include <utility>

#include <wx/taskbar.h>

#include "app/frmMain.h"
#include "config/ViewSettings.h"
#include "desktop/MainWindow.h"
#include "desktop/WindowCommands.h"
#include "desktop/commandIds.h"

namespace vell {

namespace {
constexpr std::string_view advertisementKey = "Advertisement";
constexpr std::string_view trayIconKey = "TrayIcon";
}  // namespace

void WindowCommands::addViewCommands() {
    const auto always = [] { return true; };
    const auto viewSwitch = [this](std::string_view key, bool usual, auto show) {
        const auto isOn = [this, key, usual] { return program_.viewSettings().flag(key, usual); };
        const auto change = [this, key, isOn, show] {
            program_.viewSettings().keepFlag(key, !isOn());
            show(isOn());
        };
        return std::pair(change, isOn);
    };
    const auto [changeAdvertisement, hasAdvertisement] =
        viewSwitch(advertisementKey, true, [this](bool on) { window_.offerAdvertisement(on); });
    table_[command::ShowAdvertisement] = {changeAdvertisement, always, hasAdvertisement};
    const auto [changeTrayIcon, hasTrayIcon] =
        viewSwitch(trayIconKey, false, [this](bool on) { window_.presence().showTrayIcon(on); });
    table_[command::ShowTrayIcon] = {changeTrayIcon, [] { return wxTaskBarIcon::IsAvailable(); }, hasTrayIcon};
}

void WindowCommands::showChosenView() {
    window_.offerAdvertisement(isOn(command::ShowAdvertisement));
    onList_.showKeptLooks();
    showReadingPane();
    window_.presence().showTrayIcon(isOn(command::ShowTrayIcon) && isEnabled(command::ShowTrayIcon));
    showChosenFinding();
}

}  // namespace vell
