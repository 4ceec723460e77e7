// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "ui/Message.h"

namespace vell {

class Translations;
struct RunContext;

// What people must be told of a run that has ended: what failed, why, and what helps. Nothing of a run in which nothing
// failed.
[[nodiscard]] std::optional<Message> runMessage(const RunContext& run, const Translations& words);

}  // namespace vell
