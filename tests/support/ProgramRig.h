// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "app/frmMain.h"
#include "platform/Process.h"
#include "platform/SystemTypes.h"
#include "platform/Translations.h"
#include "platform/asio/AsioEventLoop.h"
#include "platform/asio/AsioSockets.h"
#include "tests/support/RecordingPrinters.h"
#include "tests/support/RecordingShell.h"
#include "tests/support/RecordingView.h"
#include "tests/support/ScriptedBoxes.h"
#include "tests/support/ScriptedConnection.h"
#include "tests/support/ScriptedInstallation.h"
#include "tests/support/ScriptedRas.h"
#include "tests/support/ServicePeer.h"
#include "tests/support/SettingsRig.h"

namespace vell::test {

// The whole program without its looks, on 07/03/2004, over real files and a service on loopback.
struct ProgramRig : Process {
    ProgramRig() {
        std::filesystem::create_directory(folder.path() / "clips");
        configure("", folder.text() + "/clips");
        service.serve(3);
        connection.connected = true;
        connection.flags = ConnectionApi::Lan | ConnectionApi::Configured;
    }
    void configure(const std::string& more, const std::string& localDir) {
        folder.put("vell.ini",
                   "[Host]\r\nHost=service.example\r\nUid=ann\r\nRetryOnFailure=3\r\nRetryDelay=49\r\n"
                   "[General]\r\nDebug=1\r\n[Download]\r\n" +
                       more + "AutoUpdateCheck=0\r\nLocalDir=" + localDir + "\r\n");
    }
    bool runToday() {
        const bool started = program.Form_Load(frmMain::Start::Alone);
        if (started) program.downloads().mnuForceDownload_Click();
        program.Form_Unload();
        return started && program.downloads().outcome().isGood();
    }
    [[nodiscard]] std::string ProgramFolder() const override { return folder.text(); }
    [[nodiscard]] std::string DocumentsFolder() const override { return folder.text(); }
    [[nodiscard]] bool IsPreviousInstance() override { return anotherRuns; }
    void RaisePrevious() override { boxes.Shown.emplace_back("raised"); }
    void OnRaise(std::function<void()> /*raise*/) override {}

    [[nodiscard]] std::string logged() const {
        return folder.has("vell.log") ? SettingsRig::plain(folder.get("vell.log")) : "";
    }
    [[nodiscard]] bool logHas(const std::string& lines) const { return logged().find(lines) != std::string::npos; }
    // "" when there is no such file.
    [[nodiscard]] std::string inDay(const std::string& name) const {
        const std::string path = "clips/07032004/" + name;
        return folder.has(path) ? folder.get(path) : "";
    }

    TempFolder folder;
    ServicePeer service;
    DrivenClock clock;
    AsioEventLoop loop{clock};
    TroubledFiles files;
    SystemIniFile iniFile{files};
    SystemInternet internet{loop, clock};
    AsioSockets sockets{loop};
    ScriptedConnection connection;
    ScriptedRas ras;
    ScriptedBoxes boxes;
    RecordingShell shell;
    RecordingPrinters printers;
    SystemSignatures signatures{files};
    ScriptedInstallation installation;
    Translations english;
    RecordingView view;
    bool anotherRuns = false;
    frmMain program{{clock, loop, files, iniFile, internet, sockets, connection, ras, boxes, *this, shell, printers,
                     signatures, installation, english},
                    view,
                    {"2.1.37", VELL_DEMO_UPDATE_KEY}};
};

}  // namespace vell::test
