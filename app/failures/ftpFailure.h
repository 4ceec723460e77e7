// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "service/Failure.h"

namespace vell {

// What a failure of the FTP client means. `error` is its FtpGetLastError; `text` is what it or the server says.
[[nodiscard]] Failure ftpFailure(std::int32_t error, const std::string& host, const std::string& text);

}  // namespace vell
