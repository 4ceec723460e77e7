// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "base/Date.h"
#include "service/Failure.h"

namespace vell {

// A file of a clipping that has not come, after all its attempts.
struct FailedFile {
    Date Day;
    std::string Name;
    std::string Change;  // tells the version of its clipping
    Failure Why;
    bool OthersHadTurn = false;  // the clipping's other files have come, or failed as well
};

}  // namespace vell
