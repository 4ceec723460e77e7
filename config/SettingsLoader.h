// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "base/errors.h"
#include "config/Settings.h"

namespace vell {

class modIni;

// Fills the settings from the settings file, in the order of their table. A key that is missing gives the field its
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
    Settings& settings_;
    modIni& ini_;
    ErrorLog& errors_;
    TextLog& log_;
    std::string appVersion_;
    bool isWhole_ = true;
};

}  // namespace vell
