// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "log/EventLog.h"
#include "update/ProgramVersion.h"
#include "update/UpdateFolder.h"
#include "update/UpdateKeys.h"
#include "update/UpdateTexts.h"

namespace vell {

class modIni;
struct Platform;

// Replaces the program by the version that lies ready, after looking at it once more.
class UpdateInstaller {
  public:
    // `key`: see frmUpdate. Backslash at the end of `programFolder`.
    UpdateInstaller(const Platform& os, modIni& ini, EventLog& log, const std::string& version, const std::string& key,
                    const std::string& programFolder);

    // False when the program stays as it is, with the reason for people. What lay ready is gone in either case.
    [[nodiscard]] bool install(std::string& fault);
    // A version that did not come up has given way to this one: tells so, and remembers not to fetch it by itself.
    void tellPutBack();

  private:
    [[nodiscard]] bool replaceProgram(std::string& fault);
    void rememberFailure(const std::string& version);

    const Platform& os_;
    modIni& ini_;
    EventLog& log_;
    UpdateTexts texts_;
    ProgramVersion running_;
    UpdateFolder ready_;
    UpdateKeys keys_;
    std::string version_;  // that lies ready
};

}  // namespace vell
