// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>

namespace vell {

// What a command of the window does, and whether it can be done now.
struct Command {
    std::function<void()> Run;
    std::function<bool()> CanRun;
    std::function<bool()> IsOn{};  // of a switch
};

// By the numbers of commandIds.h.
using CommandTable = std::map<int, Command>;

}  // namespace vell
