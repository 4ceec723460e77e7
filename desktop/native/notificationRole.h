// SPDX-License-Identifier: MIT
#pragma once

class wxWindow;

namespace vell {

// A screen reader is to read the window out whenever it appears.
void setNotificationRole(wxWindow& window);

}  // namespace vell
