// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vell {

struct Failure;

// What an exchange with the service tells the program around it. Texts in code page 1253.
class RunFeedback {
  public:
    virtual ~RunFeedback() = default;

    // The one-line status text, and the one shown now.
    virtual void StatusBar(std::string_view text) = 0;
    [[nodiscard]] virtual std::string statusText() const = 0;
    // A message that waits for the user.
    virtual void displayInfoMessageBox(std::string_view text) = 0;
    // Bytes of the current file received so far. The same count twice says that the file has ended.
    virtual void HTTPDownloadProgress(std::int32_t bytes) = 0;
    // Why what is under way does not come. What is told later is nearer to the matter.
    virtual void failed(const Failure& failure) = 0;
    // Lets the user change the settings; returns when that is done.
    virtual void openSetup() = 0;
};

}  // namespace vell
