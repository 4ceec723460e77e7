// SPDX-License-Identifier: MIT
#include "service/Failure.h"

#include "base/errors.h"
#include "platform/internetErrors.h"

namespace vell {

Failure failureOf(const RunTimeError& error) {
    switch (error.Number) {
        case error_number::DiskFull:
            return {Cause::DiskFull};
        case error_number::PermissionDenied:
        case error_number::PathAccess:
        case error_number::PathNotFound:
        case error_number::BadFileName:
        case error_number::DeviceError:
            return {Cause::FileUnwritable, error.Description};
        default:
            return {Cause::Unknown, error.Description};
    }
}

Failure internetFailure(std::int32_t error, std::string_view host) {
    if (host.empty()) return {Cause::NoHost};
    switch (error) {
        case internet_error::NameNotResolved:
        case internet_error::InvalidUrl:
            return {Cause::NameNotFound, std::string(host)};
        case internet_error::Timeout:
        case internet_error::CannotConnect:
            return {Cause::NoAnswer, std::string(host)};
        case internet_error::ConnectionAborted:
        case internet_error::ConnectionReset:
        case internet_error::Disconnected:
            return {Cause::ConnectionLost, std::string(host)};
        case internet_error::UnknownScheme:
        case internet_error::InvalidResponse:
        case internet_error::RedirectFailed:
            return {Cause::BadAnswer, std::string(host)};
        default:
            return {Cause::Unknown, "internet error " + std::to_string(error)};
    }
}

}  // namespace vell
