// SPDX-License-Identifier: MIT
#include "desktop/native/dialogRole.h"

namespace vell {

void giveDialogRole(wxDialog& /*dialog*/) {}

}  // namespace vell
