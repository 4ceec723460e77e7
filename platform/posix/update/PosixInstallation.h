// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/Installation.h"
#include "platform/posix/files/FileHandle.h"
#include "platform/posix/update/ProgramSet.h"
#include "platform/posix/update/UpdateState.h"

namespace vell {

// An installation is the folder around the program's folder "bin". Replacing it happens by way of a folder
// ".vell-update" in it, and begins with the old files being kept in PREVIOUS there and a note of what is to move,
// STATE; from then on the next start can go on with it. One process at a time works on it, or tries the new program: it
// holds LOCK.
class PosixInstallation : public Installation {
  public:
    struct Start {
        std::string Executable;              // the system's path
        std::vector<std::string> Arguments;  // with the program's own name
        std::string Version;
    };
    explicit PosixInstallation(Start start);
    // A trial that ends in good order without having come up says nothing about the program.
    ~PosixInstallation() override;
    PosixInstallation(const PosixInstallation&) = delete;
    PosixInstallation& operator=(const PosixInstallation&) = delete;

    // Brings to an end, or back, what a killed process has left. True when the program is another one now, and is to be
    // restarted.
    [[nodiscard]] bool settle();

    [[nodiscard]] std::string PlatformName() const override;
    [[nodiscard]] bool IsOwn() const override;
    [[nodiscard]] std::string UpgradeCommand() const override;
    void Install(std::string_view archive, std::string_view version) override;
    void CameUp() override;
    [[nodiscard]] std::optional<std::string> TakePutBack() override;
    void Restart() override;

  private:
    [[nodiscard]] bool takeLock();
    [[nodiscard]] bool goOn(UpdateState state);
    [[nodiscard]] bool begin(UpdateState& state);
    void undo(UpdateState& state);
    void finish();
    [[nodiscard]] UpdateState stage(std::string_view archive, std::string_view version);
    void prove(const UpdateState& state) const;
    void replace(UpdateState& state);
    void orderFiles(std::vector<std::string>& files) const;

    Start start_;
    std::string root_;  // empty for a program that lies in no "bin"
    std::string work_;
    std::string stateFile_;
    ProgramSet files_;
    FileHandle lock_;
    std::optional<UpdateState> trial_;  // of this process
    std::string putBack_;
};

}  // namespace vell
