// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace vell {

// What NetworkManager tells. Names are in code page 1253; paths are its own.

struct NetworkState {
    bool Online = false;
    bool NetworkingOff = false;  // by the user's wish
    bool OnDialUp = false;       // the link that carries the default route is a dial-up link
};

// A connection that can be made.
struct NetworkProfile {
    std::string Path;
    std::string Name;
    bool IsDialUp = false;  // ppp, gsm, bluetooth and their kin
};

// A connection that is up or coming up.
struct NetworkLink {
    std::string Path;
    std::string ProfilePath;
    std::string Name;
    std::uint32_t Number = 0;  // the last part of the path
    bool IsDialUp = false;
    bool IsPrimary = false;  // carries the default route
};

}  // namespace vell
