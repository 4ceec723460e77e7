// SPDX-License-Identifier: MIT
#include "platform/posix/program/desktopApplications.h"

#include "platform/Shell.h"
#include "platform/posix/program/desktopServices.h"

namespace vell {

namespace {

Opening asked(int (DesktopServices::*open)(const std::string&), const std::string& what) {
    const LoadedServices& desktop = desktopServices();
    if (desktop.Services == nullptr) return {shell_code::NoAssociation, desktop.Problem};
    return {(desktop.Services->*open)(what), {}};
}

}  // namespace

Opening openWithApplication(const std::string& systemPath) {
    return asked(&DesktopServices::openWithApplication, systemPath);
}

Opening openAddress(const std::string& address) {
    return asked(&DesktopServices::openAddress, address);
}

}  // namespace vell
