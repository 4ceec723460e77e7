// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"

namespace vell {

class AsioEventLoop;
class Installation;

// The files of the program that has just started, after whatever an update has left to do with them: that may be so
// much that the program restarts here. To be called once the program is to do its work, before anything else;
// `arguments` with the program's own name.
[[nodiscard]] std::unique_ptr<Installation> settledInstallation(std::vector<std::string> arguments,
                                                                std::string_view version);

// The operating system that the program was built for, put together once for every front-end. Outlives what it is
// handed to.
class SystemPlatform {
  public:
    // `folder` is the program folder that was named on the command line, `own` the program's files as its start has
    // found them. Raises RunTimeError when there is no program folder and none can be made.
    SystemPlatform(std::optional<std::string> folder, Installation& own);
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
