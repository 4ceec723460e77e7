// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vell {

class MessageBoxes;
class modIni;

// The two moments of an update that a start of the program sees. Both tell the user once.

// True when a newer program lies ready: this start is for installing it, and nothing else.
[[nodiscard]] bool takePendingUpdate(modIni& ini, MessageBoxes& boxes);
// When the last installation was to bring the running version.
void tellFinishedUpdate(modIni& ini, MessageBoxes& boxes, const std::string& version);

}  // namespace vell
