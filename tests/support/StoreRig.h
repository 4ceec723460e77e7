// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "base/text.h"
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

namespace vell::test {

// The lines of a log without what differs from run to run: date and time in front.
[[nodiscard]] inline std::string plainLog(const std::string& text) {
    std::string plain;
    for (const std::string_view line : Split(text, "\r\n"))
        plain.append(line.substr(Mid(line, 20, 4) == ",   " ? 23 : 0)).append("\n");
    return plain.substr(0, plain.size() - 1);
}

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
