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
#include "platform/windows/update/CngSignatures.h"

namespace vell {

struct SystemPlatform::Parts {
    Parts(const std::optional<std::string>& folder, Installation& own)
        : Program(ProgramPlace::ofThisProcess(folder)), Own(own) {}

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
    CngSignatures Signing{Disk};
    Installation& Own;
    Translations Words;
};

SystemPlatform::SystemPlatform(std::optional<std::string> folder, Installation& own)
    : parts_(std::make_unique<Parts>(folder, own)) {}

SystemPlatform::~SystemPlatform() = default;

Platform SystemPlatform::with(MessageBoxes& boxes) {
    Parts& p = *parts_;
    return {p.Time, p.Loop,    p.Disk,         p.Ini,     p.Internet, p.Net, p.Connection, p.Ras,
            boxes,  p.Program, p.DesktopShell, p.Printer, p.Signing,  p.Own, p.Words};
}

AsioEventLoop& SystemPlatform::loop() {
    return parts_->Loop;
}

}  // namespace vell
