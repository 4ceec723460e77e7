// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "app/frmMain.h"
#include "platform/Process.h"
#include "platform/asio/AsioEventLoop.h"
#include "platform/posix/CurlInternet.h"
#include "platform/posix/PosixIniFile.h"
#include "tests/support/DrivenClock.h"
#include "tests/support/RecordingShell.h"
#include "tests/support/RecordingView.h"
#include "tests/support/ScriptedBoxes.h"
#include "tests/support/ServicePeer.h"
#include "tests/support/TempFolder.h"
#include "tests/support/TroubledFiles.h"
#include "tests/support/plainLog.h"

namespace vell::test {

// The whole program without its looks, on 07/03/2004, over real files and a service on loopback that lists clippings.
struct ProgramRig : Process {
    ProgramRig() {
        std::filesystem::create_directory(folder.path() / "clips");
        folder.put("vell.ini",
                   "[Host]\r\nHost=service.example\r\nUid=ann\r\nRetryOnFailure=3\r\nRetryDelay=5\r\n"
                   "[General]\r\nDebug=1\r\n[Download]\r\nLocalDir=" +
                       folder.text() + "/clips\r\n");
        serve(3);
    }
    // As many clippings of three files each, and the advertisement.
    void serve(int clippings) {
        std::string list;
        for (int i = 1; i <= clippings; ++i) {
            const std::string base = "N" + std::to_string(i) + "20040307";
            list += base + ".pdf||paper||title " + std::to_string(i) + "||cat||type||1||-||1500||300||20<br>";
            const std::pair<const char*, std::size_t> forms[] = {{".PDF", 1500}, {".TXT", 300}, {".MT", 20}};
            for (const auto& [ending, size] : forms)
                service.Answers[pathOf(base + ending)] = HttpPeer::ok(std::string(size, static_cast<char>('a' + i)));
        }
        service.Answers[ServicePeer::listScript] = HttpPeer::ok(list);
        service.Answers[ServicePeer::alertScript] = HttpPeer::ok("strike");
        service.Answers["/archive/RTIS/ME/NT/ADVERTISMENT.JPG"] = HttpPeer::ok(std::string(17855, 'j'));
    }
    static std::string pathOf(const std::string& name) { return "/archive/2004/03/07/" + name; }

    [[nodiscard]] std::string ProgramFolder() const override { return folder.text(); }
    [[nodiscard]] std::string ExecutableName() const override { return "vell"; }
    [[nodiscard]] bool IsPreviousInstance() override { return anotherRuns; }

    // The log's lines without their date and time.
    [[nodiscard]] std::string logged() const { return plainLog(folder.get("vell.log")); }
    [[nodiscard]] std::string inDay(const std::string& name) const { return folder.get("clips/07032004/" + name); }

    TempFolder folder;
    ServicePeer service;
    DrivenClock clock;
    AsioEventLoop loop{clock};
    TroubledFiles files;
    PosixIniFile iniFile{files};
    CurlInternet internet{loop, clock};
    ScriptedBoxes boxes;
    RecordingShell shell;
    RecordingView view;
    bool anotherRuns = false;
    frmMain program{{clock, loop, files, iniFile, internet, boxes, *this, shell}, view, "2.1.37"};
};

}  // namespace vell::test
