// SPDX-License-Identifier: MIT
#include "ftp/FtpSocketLog.h"

#include <string>

#include "base/errors.h"

namespace vell {

void logSocketError(TextLog& log, std::string_view socket, std::int32_t number, std::string_view description) {
    // The number as a result code of the control facility, which is how such components report it beside the number.
    const auto code = static_cast<std::int32_t>(0x800A0000U | (static_cast<std::uint32_t>(number) & 0xFFFFU));
    log.WriteLog(std::string(socket) + " Error-->Number:" + std::to_string(number) + ", Description:" +
                 std::string(description) + ", SCode:" + std::to_string(code) + ", Source:TcpSocket");
}

}  // namespace vell
