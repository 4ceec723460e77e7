// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "service/Failure.h"

namespace vell {

class Translations;

// The cause for people, as a whole sentence. `files`: so many have failed for it.
[[nodiscard]] std::string failureText(const Failure& failure, const Translations& words, std::size_t files = 1);

}  // namespace vell
