// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "base/errors.h"
#include "config/Settings.h"

namespace vell {

class modIni;

// Fills the settings from the settings file, in the order of their table. A key that is missing gives the field its
// empty value. A password that cannot be unscrambled ends the load there, leaving the later fields as they were; a file
// that is there and cannot be read leaves all of them.
class SettingsLoader {
  public:
    SettingsLoader(Settings& settings, modIni& ini, ErrorLog& errors, TextLog& log);

    // The running program's version, "major.minor.revision".
    void setAppVersion(std::string version);
    void GetSetup();
    // False when the last load found a file that cannot be read.
    [[nodiscard]] bool hasRead() const { return hasRead_; }
    // What people are told when the last load ended early, and what they can do; empty when it did not.
    [[nodiscard]] std::string_view complaint() const { return complaint_; }

  private:
    void load();

    Settings& settings_;
    modIni& ini_;
    ErrorLog& errors_;
    TextLog& log_;
    std::string appVersion_;
    std::string_view complaint_;
    bool hasRead_ = false;
};

}  // namespace vell
