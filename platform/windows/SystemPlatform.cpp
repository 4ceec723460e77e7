// SPDX-License-Identifier: MIT
#include "platform/SystemPlatform.h"

#include <utility>

#include "platform/Translations.h"
#include "platform/asio/AsioEventLoop.h"
#include "platform/asio/AsioSockets.h"
#include "platform/windows/files/WindowsFiles.h"
#include "platform/windows/files/ini/WindowsIniFile.h"
#include "platform/windows/internet/WinInetInternet.h"
#include "platform/windows/network/WindowsConnection.h"
#include "platform/windows/network/WindowsRas.h"
#include "platform/windows/printing/WindowsPrinters.h"
#include "platform/windows/program/SystemClock.h"
#include "platform/windows/program/WindowsProcess.h"
#include "platform/windows/program/WindowsShell.h"

namespace vell {

struct SystemPlatform::Parts {
    explicit Parts(const std::optional<std::string>& folder) : Program(ProgramPlace::ofThisProcess(folder)) {}

    SystemClock Time;
    AsioEventLoop Loop{Time};
    WindowsFiles Disk;
    WindowsIniFile Ini{Disk};
    WinInetInternet Internet{Loop, Time};
    AsioSockets Net{Loop};
    WindowsConnection Connection{Loop};
    WindowsRas Ras;
    WindowsProcess Program;
    WindowsShell DesktopShell;
    WindowsPrinters Printer;
    Translations Words;
};

SystemPlatform::SystemPlatform(std::optional<std::string> folder) : parts_(std::make_unique<Parts>(folder)) {}

SystemPlatform::~SystemPlatform() = default;

Platform SystemPlatform::with(MessageBoxes& boxes) {
    Parts& p = *parts_;
    return {p.Time, p.Loop, p.Disk,    p.Ini,          p.Internet, p.Net,  p.Connection,
            p.Ras,  boxes,  p.Program, p.DesktopShell, p.Printer,  p.Words};
}

AsioEventLoop& SystemPlatform::loop() {
    return parts_->Loop;
}

}  // namespace vell
