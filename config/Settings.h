// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "config/ScheduleEntry.h"

namespace vell {

// The configuration as the rest of the program reads it. Texts in code page 1253; passwords are in clear.
struct Settings {
    std::string Protocol;
    bool UseHTTP = true;
    std::string Host;
    std::int16_t Port = 0;  // of FTP; HTTP always goes to 80
    std::string Uid;
    std::string Pwd;
    std::int16_t RetryOnFailure = 0;
    double RetryDelay = 0;     // seconds
    std::int16_t TimeOut = 0;  // seconds
    bool Passive = false;
    std::string proxyUsername;
    std::string proxyPwd;
    std::string LocalDir;  // without a backslash at its end
    std::string DialUp;
    bool PrintOnDownload = false;
    bool CloseConnection = false;
    bool AutoUpdateCheck = false;
    bool AutoUpdateServer = false;
    bool AutoUpdateNotify = false;
    std::int16_t AutoPlayDelay = 0;  // seconds
    std::int16_t PrintAllDelay = 0;  // seconds
    std::int16_t Debug = 0;          // 1 or more: the event log is kept
    std::string AgentName;           // what the service sees of the program's version and the user

    std::vector<ScheduleEntry> ScheduleList;  // filled by GetSchedule alone
};

}  // namespace vell
