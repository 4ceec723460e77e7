// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace vell {

// Is what begins like this (512 bytes tell) a web page? It is what the login page of a wireless network answers in
// place of anything that is asked for.
[[nodiscard]] bool isWebPage(std::string_view beginning);

}  // namespace vell
