// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "app/failures/FailedFile.h"

namespace vell {

struct Session;

// What a further run has to fetch.
struct MissingDays {
    std::vector<Date> Days;        // all that have something missing, in the order of the calendar
    std::vector<FailedFile> Only;  // of days of which only this is missing
};

[[nodiscard]] bool isAnythingMissing(const Session& session);
// What the last run has not brought, and files that earlier ones have left missing.
[[nodiscard]] MissingDays missingDays(const Session& session);
// Those files. Of their clippings all that is missing: a part of one is no clipping.
[[nodiscard]] MissingDays missingDays(const Session& session, const std::vector<FailedFile>& files);

}  // namespace vell
