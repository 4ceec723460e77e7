// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "config/SettingsLoader.h"
#include "config/frmSetup.h"
#include "config/modIni.h"
#include "log/EventLog.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/PosixIniFile.h"
#include "tests/support/DrivenClock.h"
#include "tests/support/TempFolder.h"

namespace vell::test {

// The settings over a real file in a folder of the test's own, the log on.
struct SettingsRig {
    SettingsRig() {
        ini.setAppDir(folder.text() + "\\");
        loader.setAppVersion("2.0.15");
        log.Start(folder.text(), folder.text() + "\\vell.log");
    }
    void load(const std::string& file) {
        folder.put("vell.ini", file);
        loader.GetSetup();
    }
    [[nodiscard]] bool logHas(const std::string& line) const {
        return folder.get("vell.log").find(line) != std::string::npos;
    }

    TempFolder folder;
    DrivenClock clock;
    PosixFiles files;
    PosixIniFile iniFile{files};
    EventLog log{clock, files};
    modIni ini{iniFile, log};
    Settings setup;
    SettingsLoader loader{setup, ini, log, log};
};

}  // namespace vell::test
