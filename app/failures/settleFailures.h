// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace vell {

struct Session;

// A run is done with the files of a day, of which so many of the list have had their turn: what failed stands in its
// summary, and is missing from now on; what came is missing no more, nor is what the service does not list any more.
void settleFailures(Session& session, std::size_t turns);

}  // namespace vell
