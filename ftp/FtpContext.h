// SPDX-License-Identifier: MIT
#pragma once

#include "ftp/FtpErrors.h"
#include "ftp/FtpServices.h"
#include "ftp/FtpSettings.h"
#include "ftp/FtpWait.h"
#include "ftp/OrderedEvents.h"

namespace vell {

// What the parts of one connection share.
struct FtpContext {
    FtpContext(FtpServices services, FtpSettings& settings, CFtpConnectionEvents& owner)
        : Services(services), Settings(settings), Events(owner), Wait(Services, Settings, Errors) {}
    FtpContext(const FtpContext&) = delete;
    FtpContext& operator=(const FtpContext&) = delete;

    const FtpServices Services;
    FtpSettings& Settings;
    OrderedEvents Events;
    FtpErrors Errors;
    FtpWait Wait;
};

}  // namespace vell
