// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace vell {

class TextLog;

// The log line of a socket's error; `socket` is the name it has in the log.
void logSocketError(TextLog& log, std::string_view socket, std::int32_t number, std::string_view description);

}  // namespace vell
