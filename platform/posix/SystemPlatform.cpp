// SPDX-License-Identifier: MIT
#include "platform/SystemPlatform.h"

#include <utility>

#include "platform/Translations.h"
#include "platform/asio/AsioEventLoop.h"
#include "platform/asio/AsioSockets.h"
#include "platform/posix/files/PosixFiles.h"
#include "platform/posix/files/ini/PosixIniFile.h"
#include "platform/posix/internet/CurlInternet.h"
#include "platform/posix/network/NetworkManagerClient.h"
#include "platform/posix/network/PosixConnection.h"
#include "platform/posix/network/PosixRas.h"
#include "platform/posix/printing/CupsPrinters.h"
#include "platform/posix/program/PosixProcess.h"
#include "platform/posix/program/PosixShell.h"
#include "platform/posix/program/SystemClock.h"
#include "platform/posix/update/OpenSslSignatures.h"

namespace vell {

struct SystemPlatform::Parts {
    Parts(std::optional<std::string> folder, Installation& own)
        : Program(ProgramPlace::ofThisProcess(std::move(folder))), Own(own) {}

    SystemClock Time;
    AsioEventLoop Loop{Time};
    PosixFiles Disk;
    PosixIniFile Ini{Disk};
    CurlInternet Internet{Loop, Time};
    AsioSockets Net{Loop};
    NetworkManagerClient Manager{Loop, Time, ""};
    PosixConnection Connection{Manager};
    PosixRas Ras{Manager};
    PosixProcess Program;
    PosixShell DesktopShell;
    CupsPrinters Printer;
    OpenSslSignatures Signing{Disk};
    Installation& Own;
    Translations Words;
};

SystemPlatform::SystemPlatform(std::optional<std::string> folder, Installation& own)
    : parts_(std::make_unique<Parts>(std::move(folder), own)) {}

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
