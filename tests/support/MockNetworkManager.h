// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <string>

#include <sys/types.h>

namespace vell::test {

// A message bus of the test's own with a NetworkManager on it, both as long as the object lives. network_manager.py
// says what it does and knows the parameters (JSON).
class MockNetworkManager {
  public:
    [[nodiscard]] static bool isAvailable();

    explicit MockNetworkManager(const std::string& parameters);
    ~MockNetworkManager();
    MockNetworkManager(const MockNetworkManager&) = delete;
    MockNetworkManager& operator=(const MockNetworkManager&) = delete;

    [[nodiscard]] const std::string& address() const { return address_; }

  private:
    std::FILE* output_ = nullptr;
    pid_t process_ = 0;
    std::string address_;
};

}  // namespace vell::test
