// SPDX-License-Identifier: MIT
#include "app/BuildFacts.h"

namespace vell {

BuildFacts buildFacts() {
    return {VELL_VERSION, VELL_UPDATE_KEY_TEXT};
}

}  // namespace vell
