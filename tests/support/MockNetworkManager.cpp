// SPDX-License-Identifier: MIT
#include "tests/support/MockNetworkManager.h"

#include <csignal>
#include <filesystem>

namespace vell::test {

bool MockNetworkManager::isAvailable() {
    return std::filesystem::exists("/usr/bin/dbus-daemon") &&
           std::filesystem::exists("/usr/lib/python3/dist-packages/dbusmock");
}

// The mock needs the distribution's own interpreter, whose package it is.
MockNetworkManager::MockNetworkManager(const std::string& parameters) {
    const std::string command =
        "exec setpriv --pdeathsig KILL /usr/bin/python3 " VELL_NETWORK_MANAGER_PY " '" + parameters + "'";
    output_ = popen(command.c_str(), "r");
    char address[200] = "";
    if (output_ != nullptr && std::fscanf(output_, "%d %199s", &process_, address) == 2) address_ = address;
}

MockNetworkManager::~MockNetworkManager() {
    if (process_ > 0) kill(process_, SIGKILL);
    if (output_ != nullptr) pclose(output_);
}

}  // namespace vell::test
