// SPDX-License-Identifier: MIT
#include "update/LimitedPart.h"

#include <utility>

#include "base/errors.h"

namespace vell {

LimitedPart::LimitedPart(PartFile& part, std::int64_t limit, std::function<bool()> stopped)
    : part_(part), limit_(limit), stopped_(std::move(stopped)) {}

void LimitedPart::Write(std::string_view bytes) {
    if (stopped_()) throw RunTimeError(error_number::InvalidCall, "Stopped");
    if (std::cmp_greater(bytes.size(), limit_ - part_.Length()))
        throw RunTimeError(error_number::Overflow, "More bytes come than were announced");
    part_.Write(bytes);
}

}  // namespace vell
