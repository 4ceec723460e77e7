// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/errors.h"
#include "config/Settings.h"

namespace vell {

class modIni;

// Fills the settings from the settings file. Several numbers are read from their first few characters only, and
// Passive is false whatever the file says: existing files rely on both. A key that is missing gives the field its
// empty value. A password that cannot be unscrambled ends the load there, leaving the later fields as they were.
class SettingsLoader {
  public:
    SettingsLoader(Settings& settings, modIni& ini, ErrorLog& errors, TextLog& log);

    // The running program's version, "major.minor.revision".
    void setAppVersion(std::string version);
    void GetSetup();
    // False when the last load ended early.
    [[nodiscard]] bool isWhole() const { return isWhole_; }

  private:
    void loadHost();
    void loadPasswords(const std::string& scrambledPwd);
    void loadDownload();
    void loadGeneral();

    [[nodiscard]] std::string text(const char* section, const char* key) const;
    // The number that the first `length` characters begin with.
    [[nodiscard]] double cut(const char* section, const char* key, std::size_t length) const;
    [[nodiscard]] std::int16_t number(const char* section, const char* key) const;

    Settings& settings_;
    modIni& ini_;
    ErrorLog& errors_;
    TextLog& log_;
    std::string appVersion_;
    bool isWhole_ = true;
};

}  // namespace vell
