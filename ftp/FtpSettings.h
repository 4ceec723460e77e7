// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace vell {

// Values of TransferMode.
inline constexpr std::int16_t ftpBinary = 0;
inline constexpr std::int16_t ftpAscii = 1;

// What the owner of a connection sets, as a rule before Connect.
struct FtpSettings {
    std::string FtpServer;  // name or numeric address
    std::int32_t Port = 0;  // 0 means 21
    std::string UserName;   // empty means "anonymous"; Connect fills it in then
    std::string Password;
    std::int16_t Timeout = 30;  // seconds allowed for each wait
    bool PassiveMode = false;
    std::int16_t TransferMode = ftpBinary;
    bool AskOnTimeout = true;  // may a wait that runs out ask the user? Without it, it just fails
};

}  // namespace vell
