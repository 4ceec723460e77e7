// SPDX-License-Identifier: MIT
#pragma once

class wxTopLevelWindow;

namespace vell {

// Shows the window for the first time, without complaints that nobody can do anything about.
void showQuietly(wxTopLevelWindow& window);

}  // namespace vell
