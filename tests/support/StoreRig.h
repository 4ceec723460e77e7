// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "config/Settings.h"
#include "config/modIni.h"
#include "log/EventLog.h"
#include "platform/asio/AsioEventLoop.h"
#include "platform/posix/PosixIniFile.h"
#include "store/modGlobal.h"
#include "tests/support/DrivenClock.h"
#include "tests/support/ScriptedBoxes.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TroubledFiles.h"
#include "tests/support/plainLog.h"

namespace vell::test {

// The store over real files in a folder of the test's own, the log on.
struct StoreRig {
    StoreRig() {
        setup.LocalDir = folder.text() + "/clips";
        std::filesystem::create_directory(setup.LocalDir);
        day.gCurrentDate = "07032004";
        day.cmbDate = "07/03/2004";
        day.gDayFolder = setup.LocalDir + "\\07032004\\";
        ini.setAppDir(folder.text() + "\\");
        log.Start(folder.text(), folder.text() + "\\vell.log");
    }
    // The log since the start or the last call, without its first line.
    std::string logged() {
        std::string text = plainLog(folder.get("vell.log"));
        text.erase(0, seenOfLog);
        seenOfLog += text.size();
        return text.starts_with("=====") ? text.substr(text.find('\n') + 1) : text;
    }
    void putIntoDay(const std::string& name, std::string_view bytes) { folder.put("clips/07032004/" + name, bytes); }
    [[nodiscard]] std::string inDay(const std::string& name) const { return folder.get("clips/07032004/" + name); }
    [[nodiscard]] bool dayHas(const std::string& name) const { return folder.has("clips/07032004/" + name); }

    TempFolder folder;
    DrivenClock clock;
    AsioEventLoop loop{clock};
    TroubledFiles files;
    PosixIniFile iniFile{files};
    EventLog log{clock, files};
    modIni ini{iniFile, log};
    ScriptedBoxes boxes;
    Settings setup;
    DayState day;
    modGlobal store{files, loop, boxes, ini, log, setup, day};
    std::size_t seenOfLog = 0;
};

}  // namespace vell::test
