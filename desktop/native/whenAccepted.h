// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class wxDialog;

namespace vell {

// Tells when a file or folder dialog of the system's is closed with its affirmative button. They keep no return code
// unless they are waited for.
void whenAccepted(wxDialog& dialog, std::function<void()> tell);

}  // namespace vell
