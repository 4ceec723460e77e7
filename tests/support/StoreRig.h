// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/asio/AsioEventLoop.h"
#include "store/modGlobal.h"
#include "tests/support/ScriptedBoxes.h"
#include "tests/support/SettingsRig.h"

namespace vell::test {

// The store over real files, on 07/03/2004, a day that is also the chosen one.
struct StoreRig : SettingsRig {
    StoreRig() {
        setup.LocalDir = folder.text() + "/clips";
        std::filesystem::create_directory(setup.LocalDir);
        day = {march7, setup.LocalDir + "\\07032004\\", march7};
    }
    void put(const std::string& name, std::string_view bytes) { folder.put("clips/07032004/" + name, bytes); }
    [[nodiscard]] std::string get(const std::string& name) const { return folder.get("clips/07032004/" + name); }
    [[nodiscard]] bool has(const std::string& name) const { return folder.has("clips/07032004/" + name); }

    static constexpr Date march7{2004, 3, 7};
    static constexpr Date march8{2004, 3, 8};
    AsioEventLoop loop{clock};
    ScriptedBoxes boxes;
    DayState day;
    modGlobal store{{files, loop, boxes, ini, log, setup, day}};
};

}  // namespace vell::test
