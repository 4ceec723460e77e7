// SPDX-License-Identifier: MIT
#include "config/SettingsLoader.h"

#include <utility>

#include "base/text.h"
#include "config/modCrypt.h"
#include "config/modIni.h"

namespace vell {

SettingsLoader::SettingsLoader(Settings& settings, modIni& ini, ErrorLog& errors, TextLog& log)
    : settings_(settings), ini_(ini), errors_(errors), log_(log) {}

void SettingsLoader::setAppVersion(std::string version) {
    appVersion_ = std::move(version);
}

void SettingsLoader::GetSetup() {
    isWhole_ = false;
    try {
        loadHost();
        loadDownload();
        loadGeneral();
        settings_.AgentName = "VELL_" + appVersion_ + "_user:" + settings_.Uid;
        isWhole_ = true;
    } catch (...) {
        log_.WriteLog("GetSetup()");
    }
}

void SettingsLoader::loadHost() {
    settings_.Protocol = text("Host", "Protocol");
    settings_.UseHTTP = settings_.Protocol != "FTP";
    settings_.Host = text("Host", "Host");
    settings_.Port = CInt16(cut("Host", "Port", 4));
    settings_.Uid = text("Host", "Uid");
    const std::string scrambledPwd = text("Host", "Pwd");
    settings_.RetryOnFailure = CInt16(cut("Host", "RetryOnFailure", 1));
    settings_.RetryDelay = cut("Host", "RetryDelay", 2);
    settings_.TimeOut = CInt16(cut("Host", "TimeOut", 2));
    settings_.proxyUsername = text("Host", "proxyUsername");
    settings_.proxyPwd = text("Host", "proxyPwd");
    loadPasswords(scrambledPwd);
}

void SettingsLoader::loadPasswords(const std::string& scrambledPwd) {
    std::string key;
    settings_.proxyPwd = Decrypt(settings_.proxyPwd, key, errors_);
    settings_.Passive = false;
    settings_.Pwd = Decrypt(scrambledPwd, key, errors_);
}

void SettingsLoader::loadDownload() {
    settings_.LocalDir = text("Download", "LocalDir");
    settings_.DialUp = text("Download", "DialUp");
    settings_.PrintOnDownload = number("Download", "PrintOnDownload") != 0;
    settings_.CloseConnection = number("Download", "CloseConnection") != 0;
    const std::string check = text("Download", "AutoUpdateCheck");
    settings_.AutoUpdateCheck = check.empty() || Val(check) != 0;
    settings_.AutoUpdateServer = Val(text("Download", "AutoUpdateServer")) != 0;
    settings_.AutoUpdateNotify = Val(text("Download", "AutoUpdateNotify")) != 0;
}

void SettingsLoader::loadGeneral() {
    settings_.AutoPlayDelay = CInt16(cut("General", "AutoPlayDelay", 2));
    settings_.PrintAllDelay = CInt16(cut("General", "PrintAllDelay", 2));
    settings_.Debug = number("General", "Debug");
}

std::string SettingsLoader::text(const char* section, const char* key) const {
    std::string value;
    ini_.VellIniReadString(section, key, value);
    return value;
}

double SettingsLoader::cut(const char* section, const char* key, std::size_t length) const {
    return Val(Left(text(section, key), length));
}

std::int16_t SettingsLoader::number(const char* section, const char* key) const {
    std::int16_t value = 0;
    ini_.VellIniReadString(section, key, value);
    return value;
}

}  // namespace vell
