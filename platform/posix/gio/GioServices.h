// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/program/desktopServices.h"

namespace vell {

class GioServices : public DesktopServices {
  public:
    [[nodiscard]] std::unique_ptr<NetworkManager> networkManager(EventLoop& loop, Clock& clock, std::string busAddress,
                                                                 std::chrono::milliseconds patience) override;
    [[nodiscard]] std::unique_ptr<WindowName> windowName(const std::string& folder) override;
    [[nodiscard]] std::string proxyOf(const std::string& address) override;
    [[nodiscard]] std::string documentsFolder() override;
    [[nodiscard]] int openWithApplication(const std::string& systemPath) override;
    [[nodiscard]] int openAddress(const std::string& address) override;
    [[nodiscard]] std::optional<ProgramEnd> runProgram(const std::string& systemPath,
                                                       const std::vector<std::string>& arguments,
                                                       std::chrono::milliseconds patience) override;
};

}  // namespace vell
