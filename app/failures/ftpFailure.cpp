// SPDX-License-Identifier: MIT
#include "app/failures/ftpFailure.h"

#include "ftp/FtpErrors.h"

namespace vell {

Failure ftpFailure(std::int32_t error, const std::string& host, const std::string& text) {
    if (host.empty()) return {Cause::NoHost};
    switch (error) {
        case ftp_error::HostNotFound:
        case ftp_error::HostNotFoundTryAgain:
        case ftp_error::NoAddress:
            return {Cause::NameNotFound, host};
        case ftp_error::ConnectionRefused:
        case ftp_error::NetworkUnreachable:
        case ftp_error::ConnectTimedOut:
        case ftp_error::TimedOut:
            return {Cause::NoAnswer, host};
        case ftp_error::ConnectionAborted:
        case ftp_error::ConnectionReset:
        case ftp_error::ServiceNotAvailable:
        case ftp_error::TransferAborted:
            return {Cause::ConnectionLost, host};
        case ftp_error::FileUnavailable:
            return {Cause::NotThere};
        case 0:  // what came is no reply at all
            return {Cause::BadAnswer, host};
        default:
            return text.empty() ? Failure{Cause::Unknown, "error " + std::to_string(error)}
                                : Failure{Cause::ServiceStatus, text};
    }
}

}  // namespace vell
