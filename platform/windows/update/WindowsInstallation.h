// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Installation.h"

namespace vell {

// A program that does not replace its own files: its user is told where the newer version is.
class WindowsInstallation : public Installation {
  public:
    [[nodiscard]] std::string PlatformName() const override { return "windows-x86_64"; }
    [[nodiscard]] bool IsOwn() const override { return false; }
    [[nodiscard]] std::string UpgradeCommand() const override { return {}; }
    void Install(std::string_view archive, std::string_view version) override;
    void CameUp() override {}
    [[nodiscard]] std::optional<std::string> TakePutBack() override { return std::nullopt; }
    void Restart() override {}
};

}  // namespace vell
