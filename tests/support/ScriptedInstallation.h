// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "base/errors.h"
#include "platform/Installation.h"

namespace vell::test {

// Program files that nobody has: remembers what was installed in their place.
class ScriptedInstallation : public Installation {
  public:
    [[nodiscard]] std::string PlatformName() const override { return "linux-x86_64"; }
    [[nodiscard]] bool IsOwn() const override { return Command.empty(); }
    [[nodiscard]] std::string UpgradeCommand() const override { return Command; }
    void Install(std::string_view archive, std::string_view version) override {
        if (!Fault.empty()) throw RunTimeError(error_number::DiskFull, Fault);
        Installed.append(archive.substr(archive.rfind('\\') + 1)).append(" ").append(version).append("|");
    }
    void CameUp() override {}
    [[nodiscard]] std::optional<std::string> TakePutBack() override { return std::exchange(PutBack, std::nullopt); }
    void Restart() override {}

    std::string Command;  // of a package manager; then the program is not its own
    std::string Fault;    // with which the installation fails
    std::string Installed;
    std::optional<std::string> PutBack;
};

}  // namespace vell::test
