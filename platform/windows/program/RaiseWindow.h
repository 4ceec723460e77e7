// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace vell {

// A window that nobody sees, one for each program folder, by which its owner can be asked to show the one that people
// see. Messages reach it in the loop of the window's toolkit.
class RaiseWindow {
  public:
    // `name` tells program folders apart.
    RaiseWindow(const std::wstring& name, std::function<void()> raise);
    ~RaiseWindow();
    RaiseWindow(const RaiseWindow&) = delete;
    RaiseWindow& operator=(const RaiseWindow&) = delete;

    // Asks whoever has the window of that name.
    static void ask(const std::wstring& name);

  private:
    void* window_ = nullptr;
    std::unique_ptr<std::function<void()>> raise_;
};

}  // namespace vell
