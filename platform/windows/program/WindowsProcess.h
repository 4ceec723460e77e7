// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "platform/Process.h"
#include "platform/windows/program/ProgramPlace.h"
#include "platform/windows/program/RaiseWindow.h"

namespace vell {

class WindowsProcess : public Process {
  public:
    // Raises when the program folder cannot be made, or cannot be expressed in code page 1253.
    explicit WindowsProcess(const ProgramPlace& place);
    ~WindowsProcess() override;
    WindowsProcess(const WindowsProcess&) = delete;
    WindowsProcess& operator=(const WindowsProcess&) = delete;

    [[nodiscard]] std::string ProgramFolder() const override { return folder_; }
    [[nodiscard]] std::string DocumentsFolder() const override;
    // By a mutex that is named after the program folder; it goes with the process, however that ends.
    [[nodiscard]] bool IsPreviousInstance() override;
    void RaisePrevious() override;
    void OnRaise(std::function<void()> raise) override;

  private:
    std::string folder_;
    std::wstring name_;  // of the place, whatever path leads to the folder
    void* mutex_ = nullptr;
    std::unique_ptr<RaiseWindow> window_;
};

}  // namespace vell
