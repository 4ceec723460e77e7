// SPDX-License-Identifier: MIT
#include "config/SettingsLoader.h"

#include <utility>

#include "config/SettingsTable.h"

namespace vell {

SettingsLoader::SettingsLoader(Settings& settings, modIni& ini, ErrorLog& errors, TextLog& log)
    : settings_(settings), ini_(ini), errors_(errors), log_(log) {}

void SettingsLoader::setAppVersion(std::string version) {
    appVersion_ = std::move(version);
}

void SettingsLoader::GetSetup() {
    isWhole_ = false;
    try {
        for (const SettingRow& row : settingRows())
            loadSetting(row, ini_, settings_, errors_);
        settings_.AgentName = "VELL_" + appVersion_ + "_user:" + settings_.Uid;
        isWhole_ = true;
    } catch (...) {
        log_.WriteLog("GetSetup()");
    }
}

}  // namespace vell
