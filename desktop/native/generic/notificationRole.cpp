// SPDX-License-Identifier: MIT
#include "desktop/native/notificationRole.h"

namespace vell {

// The toolkit has no word for it here.
void setNotificationRole(wxWindow& /*window*/) {}

}  // namespace vell
