// SPDX-License-Identifier: MIT
#include "config/SettingsLoader.h"

#include <utility>

#include "config/SettingsTable.h"
#include "config/modIni.h"

namespace vell {

SettingsLoader::SettingsLoader(Settings& settings, modIni& ini, ErrorLog& errors, TextLog& log)
    : settings_(settings), ini_(ini), errors_(errors), log_(log) {}

void SettingsLoader::setAppVersion(std::string version) {
    appVersion_ = std::move(version);
}

void SettingsLoader::GetSetup() {
    complaint_ = "The settings file cannot be read. Everything stays as it was.";
    hasRead_ = ini_.readAtOnce([this] { load(); });
    if (!hasRead_) log_.WriteLog("GetSetup()");
}

void SettingsLoader::load() {
    complaint_ =
        "The settings file holds a password that cannot be read, and what stands behind it is left out. Set the "
        "passwords anew in Setup ('vell-console setup Pwd -' and 'vell-console setup proxyPwd -').";
    try {
        for (const SettingRow& row : settingRows())
            loadSetting(row, ini_, settings_, errors_);
        settings_.AgentName = "VELL_" + appVersion_ + "_user:" + settings_.Uid;
        complaint_ = {};
    } catch (...) {
        log_.WriteLog("GetSetup()");
    }
}

}  // namespace vell
