// SPDX-License-Identifier: MIT
#include "platform/windows/update/WindowsInstallation.h"

#include <memory>
#include <vector>

#include "base/errors.h"
#include "platform/SystemPlatform.h"

namespace vell {

void WindowsInstallation::Install(std::string_view /*archive*/, std::string_view /*version*/) {
    throw RunTimeError(error_number::PathAccess, "The program does not replace its files on this system");
}

std::unique_ptr<Installation> settledInstallation(std::vector<std::string> /*arguments*/,
                                                  std::string_view /*version*/) {
    return std::make_unique<WindowsInstallation>();
}

}  // namespace vell
