// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "platform/Process.h"
#include "platform/posix/files/FileHandle.h"
#include "platform/posix/program/ProgramPlace.h"
#include "platform/posix/program/WindowName.h"

namespace vell {

class PosixProcess : public Process {
  public:
    // Raises when the program folder cannot be made, or cannot be expressed in code page 1253.
    explicit PosixProcess(const ProgramPlace& place);

    [[nodiscard]] std::string ProgramFolder() const override { return folder_; }
    // As the desktop has it; the user's home folder where there is no such.
    [[nodiscard]] std::string DocumentsFolder() const override;
    // By a lock on a file in the program folder, which the system takes off when the process ends, however it ends.
    [[nodiscard]] bool IsPreviousInstance() override;
    // Both over the message bus of the desktop session.
    void RaisePrevious() override;
    void OnRaise(std::function<void()> raise) override;

  private:
    [[nodiscard]] WindowName* window();

    std::string folder_;
    FileHandle lock_;
    std::string identity_;  // of the lock file, once it has been looked at
    std::unique_ptr<WindowName> window_;
};

}  // namespace vell
