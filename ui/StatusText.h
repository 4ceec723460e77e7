// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

namespace vell {

// Where a command says in one line what it does; the status line, or a dialog's own.
using StatusText = std::function<void(std::string_view text)>;

}  // namespace vell
