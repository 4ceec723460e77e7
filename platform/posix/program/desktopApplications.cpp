// SPDX-License-Identifier: MIT
#include "platform/posix/program/desktopApplications.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/text.h"
#include "platform/Shell.h"
#include "platform/posix/program/desktopServices.h"

namespace vell {

namespace {

constexpr std::array<std::string_view, 3> schemes{"http", "https", "mailto"};

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

bool isAddress(const std::string& text) {
    const auto colon = text.find(':');
    if (colon == std::string::npos) return false;
    const auto scheme = std::string_view(text).substr(0, colon);
    return std::ranges::any_of(schemes, [&](std::string_view one) { return equalNoCase(scheme, one); });
}

}  // namespace vell
