// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "base/text.h"
#include "config/SettingsLoader.h"
#include "config/modIni.h"
#include "log/EventLog.h"
#include "platform/SystemTypes.h"
#include "platform/Translations.h"
#include "tests/support/DrivenClock.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TroubledFiles.h"

namespace vell::test {

// The settings over a real file in a folder of the test's own, the log on.
struct SettingsRig {
    SettingsRig() {
        ini.setAppDir(folder.text() + "\\");
        loader.setAppVersion("2.0.15");
        log.Start(folder.text(), folder.text() + "\\vell.log");
        logged();
    }
    // A log without what differs from run to run: date and time in front of the lines.
    [[nodiscard]] static std::string plain(const std::string& log) {
        std::string text;
        for (const std::string_view line : Split(log, "\r\n"))
            text.append(line.substr(Mid(line, 20, 4) == ",   " ? 23 : 0)).append("\n");
        return text.substr(0, text.size() - 1);
    }
    // What was logged since the last call.
    std::string logged() {
        std::string text = plain(folder.get("vell.log")).substr(seenOfLog);
        seenOfLog += text.size();
        return text;
    }

    TempFolder folder;
    DrivenClock clock;
    TroubledFiles files;
    SystemIniFile iniFile{files};
    EventLog log{clock, files};
    modIni ini{iniFile, log};
    Settings setup;
    Translations english;
    SettingsLoader loader{setup, ini, log, log};
    std::size_t seenOfLog = 0;
};

}  // namespace vell::test
