// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/ChildProcess.h"

namespace vell::test {

// A message bus of the test's own with a NetworkManager on it, both as long as the object lives. network_manager.py
// says what it does and knows the parameters (JSON). It needs the distribution's own interpreter, whose package it is.
class MockNetworkManager {
  public:
    [[nodiscard]] static bool isAvailable() {
        return std::filesystem::exists("/usr/bin/dbus-daemon") &&
               std::filesystem::exists("/usr/lib/python3/dist-packages/dbusmock");
    }

    explicit MockNetworkManager(const std::string& parameters)
        : process_({"/usr/bin/python3", VELL_NETWORK_MANAGER_PY, parameters}) {}

    [[nodiscard]] const std::string& address() const { return address_; }

  private:
    ChildProcess process_;
    std::string address_ = process_.firstLine();
};

}  // namespace vell::test
