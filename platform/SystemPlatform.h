// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/Platform.h"

namespace vell {

class AsioEventLoop;

// The operating system that the program was built for, put together once for every front-end. Outlives what it is
// handed to.
class SystemPlatform {
  public:
    // `folder` is the program folder that was named on the command line. Raises RunTimeError when there is no program
    // folder and none can be made.
    explicit SystemPlatform(std::optional<std::string> folder);
    ~SystemPlatform();
    SystemPlatform(const SystemPlatform&) = delete;
    SystemPlatform& operator=(const SystemPlatform&) = delete;

    // All of it, with the front-end's message boxes.
    [[nodiscard]] Platform with(MessageBoxes& boxes);
    [[nodiscard]] AsioEventLoop& loop();

  private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace vell
