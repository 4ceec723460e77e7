// SPDX-License-Identifier: MIT
#include "desktop/Program.h"

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <utility>

#include <wx/image.h>
#include <wx/imagjpeg.h>
#include <wx/log.h>
#include <wx/utils.h>

#include "app/frmMain.h"
#include "desktop/MainWindow.h"
#include "desktop/WindowCommands.h"
#include "desktop/WindowLoop.h"
#include "desktop/dialogs/WxMessageBoxes.h"
#include "desktop/list/ClippingsList.h"
#include "desktop/native/showQuietly.h"
#include "platform/asio/AsioEventLoop.h"
#include "platform/asio/AsioSockets.h"
#include "platform/posix/files/PosixFiles.h"
#include "platform/posix/files/PosixIniFile.h"
#include "platform/posix/internet/CurlInternet.h"
#include "platform/posix/network/NetworkInterfaces.h"
#include "platform/posix/network/NetworkManagerClient.h"
#include "platform/posix/network/PosixConnection.h"
#include "platform/posix/network/PosixRas.h"
#include "platform/posix/printing/CupsPrinters.h"
#include "platform/posix/program/PosixProcess.h"
#include "platform/posix/program/PosixShell.h"
#include "platform/posix/program/SystemClock.h"

namespace vell {

namespace {
constexpr int good = 0;
constexpr int failed = 1;
constexpr int alreadyRunning = 5;  // as in the console
}  // namespace

struct Program::Parts {
    explicit Parts(const std::optional<std::string>& folder)
        : Place(ProgramPlace::ofThisProcess(folder)),
          Window(*new MainWindow(Time, Disk)),  // the toolkit deletes its windows
          Main({Time, Loop, Disk, Ini, Internet, Net, Connection, Ras, Boxes, Place, Opener, Printer}, Window,
               VELL_VERSION),
          Events(Main, Window, Boxes, [] { std::quick_exit(0); }) {}

    SystemClock Time;
    AsioEventLoop Loop{Time};
    PosixFiles Disk;
    PosixIniFile Ini{Disk};
    CurlInternet Internet{Loop, Time};
    AsioSockets Net{Loop};
    NetworkManagerClient Manager{Loop, Time, ""};
    PosixConnection Connection{Manager, configuredProxy()};
    PosixRas Ras{Manager};
    PosixProcess Place;
    PosixShell Opener;
    CupsPrinters Printer;
    WxMessageBoxes Boxes;
    MainWindow& Window;
    frmMain Main;
    WindowCommands Events;
    WindowLoop Marriage{Loop};
};

Program::Program(std::optional<std::string> folder) : folder_(std::move(folder)) {}

Program::~Program() = default;

// Nothing here is drawn with OpenGL, and that GTK asks for it is a fifth of the start. What the program starts later
// may well want it.
bool Program::Initialize(int& count, wxChar** arguments) {
    delete wxLog::SetActiveTarget(new wxLogStderr);  // what the toolkit has to say is no matter for message boxes
    const wxString variable = "GDK_GL";
    const bool isOurs = !wxGetEnv(variable, nullptr) && wxSetEnv(variable, "disable");
    const bool initialized = wxApp::Initialize(count, arguments);
    if (isOurs) wxUnsetEnv(variable);
    if (!initialized) std::cerr << "vell: There is no display to show the window on. vell-console needs none.\n";
    return initialized;
}

bool Program::OnInit() {
    SetAppName("vell");
    SetAppDisplayName("Vell");
    wxImage::AddHandler(new wxJPEGHandler);  // for the advertisement; the toolkit deletes it
    started_ = start();
    if (!started_) return true;
    for (const int signal : {SIGINT, SIGTERM})
        SetSignalHandler(signal, [](int) { wxTheApp->GetTopWindow()->Close(true); });
    return true;
}

bool Program::start() {
    try {
        parts_ = std::make_unique<Parts>(folder_);
        if (parts_->Main.Form_Load(frmMain::Start::Window)) {
            showQuietly(parts_->Window);
            parts_->Window.list().focusList();
            return true;
        }
        exitCode_ = parts_->Main.isSecondInstance() ? alreadyRunning : good;
    } catch (const std::exception& error) {
        wxLogError("%s", error.what());
        exitCode_ = failed;
    }
    return false;
}

int Program::OnRun() {
    return started_ ? wxApp::OnRun() : exitCode_;
}

int Program::OnExit() {
    parts_.reset();
    return wxApp::OnExit();
}

}  // namespace vell
