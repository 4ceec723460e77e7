// SPDX-License-Identifier: MIT
#include "desktop/Program.h"

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <utility>

#include <wx/image.h>
#include <wx/imaggif.h>
#include <wx/imagjpeg.h>
#include <wx/imagpng.h>
#include <wx/log.h>
#include <wx/utils.h>

#include "app/BuildFacts.h"
#include "app/exitCodes.h"
#include "app/frmMain.h"
#include "desktop/MainWindow.h"
#include "desktop/WindowCommands.h"
#include "desktop/WindowLoop.h"
#include "desktop/WxTranslations.h"
#include "desktop/dialogs/WxMessageBoxes.h"
#include "desktop/list/ClippingsList.h"
#include "desktop/native/alwaysShowFocus.h"
#include "desktop/native/showQuietly.h"
#include "desktop/screenText.h"
#include "platform/Installation.h"
#include "platform/Process.h"
#include "platform/SystemPlatform.h"

namespace vell {

struct Program::Parts {
    Parts(const std::optional<std::string>& folder, Installation& own)
        : System(folder, own),
          Services(System.with(Boxes).with(Words)),
          Window(*new MainWindow(Services.Time, Services.Disk)),  // the toolkit deletes its windows
          Main(Services, Window, buildFacts()),
          Events(Main, Window, Boxes, [] { std::quick_exit(exit_code::Good); }),
          Marriage(System.loop()) {}

    WxMessageBoxes Boxes;
    WxTranslations Words;
    SystemPlatform System;
    Platform Services;
    MainWindow& Window;
    frmMain Main;
    WindowCommands Events;
    WindowLoop Marriage;
};

Program::Program(std::optional<std::string> folder, Installation& own) : folder_(std::move(folder)), own_(own) {}

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
    // For the advertisement, which may be in any of them whatever its name says. The toolkit deletes them.
    wxImage::AddHandler(new wxJPEGHandler);
    wxImage::AddHandler(new wxPNGHandler);
    wxImage::AddHandler(new wxGIFHandler);
    WxTranslations::open();
    started_ = start();
    if (!started_) return true;
    for (const int signal : {SIGINT, SIGTERM})
        SetSignalHandler(signal, [](int) { wxTheApp->GetTopWindow()->Close(true); });
    return true;
}

bool Program::start() {
    try {
        parts_ = std::make_unique<Parts>(folder_, own_);
        if (parts_->Main.Form_Load(frmMain::Start::Window)) {
            parts_->Events.showChosenView();
            alwaysShowFocus(parts_->Window);
            showQuietly(parts_->Window);
            parts_->Window.list().focusList();
            parts_->Services.Program.OnRaise([this] { parts_->Window.presence().comeToFront(); });
            parts_->Events.welcome();
            return true;
        }
        if (parts_->Main.isUpdatePending()) own_.Restart();
        exitCode_ = parts_->Main.isSecondInstance() ? exit_code::AlreadyRunning : exit_code::Good;
    } catch (const std::exception& error) {
        // Whoever starts the window from the desktop sees no terminal.
        std::cerr << "vell: " << shownText(error.what()).utf8_string() << '\n';
        WxMessageBoxes().Show("Vell cannot start. " + std::string(error.what()), programCaption, Buttons::Ok,
                              BoxIcon::Error);
        exitCode_ = exit_code::Failed;
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
