// SPDX-License-Identifier: MIT
#include "platform/posix/gio/GioServices.h"

// The one name that the module shows.
extern "C" __attribute__((visibility("default"))) vell::DesktopServices* vellDesktopServices() {
    static vell::GioServices services;
    return &services;
}
