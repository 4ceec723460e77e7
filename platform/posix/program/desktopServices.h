// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "platform/posix/program/runProgram.h"

namespace vell {

class Clock;
class EventLoop;
class NetworkManager;
class WindowName;

// What only GIO can tell or do. It lies in a module of our own, libexec/vell/vell-gio.so, which is loaded with the
// first question: GIO and what it brings along cost a third of the start, and most runs need nothing of it.
class DesktopServices {
  public:
    virtual ~DesktopServices() = default;

    // The other side of a conversation over the bus at `busAddress`; `patience` is how long a change may take.
    [[nodiscard]] virtual std::unique_ptr<NetworkManager> networkManager(EventLoop& loop, Clock& clock,
                                                                         std::string busAddress,
                                                                         std::chrono::milliseconds patience) = 0;
    [[nodiscard]] virtual std::unique_ptr<WindowName> windowName(const std::string& folder) = 0;
    // By which proxy the desktop wants an address to be reached, as curl names it; empty for none.
    [[nodiscard]] virtual std::string proxyOf(const std::string& address) = 0;
    // The user's documents as the desktop has it, in the system's form.
    [[nodiscard]] virtual std::string documentsFolder() = 0;

    // As the functions of the same names.
    [[nodiscard]] virtual int openWithApplication(const std::string& systemPath) = 0;
    [[nodiscard]] virtual int openAddress(const std::string& address) = 0;
    [[nodiscard]] virtual std::optional<ProgramEnd> runProgram(const std::string& systemPath,
                                                               const std::vector<std::string>& arguments,
                                                               std::chrono::milliseconds patience) = 0;
};

struct LoadedServices {
    DesktopServices* Services = nullptr;
    std::string Problem;  // why there are none; in code page 1253
};

// Loads them at the first call, for as long as the program lives: GLib cannot be unloaded.
[[nodiscard]] const LoadedServices& desktopServices();

}  // namespace vell
