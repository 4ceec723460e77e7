// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vell {

// False when GIO would name no proxy whatever it was asked for, told without loading it. GIO itself knows none: modules
// in a folder of its own do, for which a small file says what each of them can, and the portal of a sandbox does.
[[nodiscard]] bool canGioNameProxies(const std::string& moduleFolder);

}  // namespace vell
