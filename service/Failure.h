// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vell {

class RunTimeError;

// Why something does not come, as far as the program can tell.
enum class Cause {
    Unknown,           // Detail: what the system says; may be empty
    Offline,           // the machine is not on line. Detail: what the dial-up connection failed with; empty without one
    NoHost,            // no service is set
    NameNotFound,      // Detail: the host
    NoAnswer,          // nobody answers, or not in time. Detail: the host
    ProxyUnreached,    // the proxy on the way does not answer. Detail: its host and port
    ConnectionLost,    // the answer broke off. Detail: the host
    BadAnswer,         // nothing can be made of what the service answers. Detail: the host
    LoginRefused,      //
    ServiceStatus,     // the service answers with a failure. Detail: its status, such as "500 Internal Server Error"
    NotThere,          // the service does not have the file
    NoList,            // the answer is no list of clippings. Detail: what is wrong with it
    WebPage,           // a web page came in place of the file
    WrongLength,       // Detail: both lengths in bytes, "came/listed"
    TakenByOther,      // another program fetches the same file and does not get done
    DiskFull,          //
    NoFolder,          // no download folder is set
    FolderMissing,     // Detail: the download folder
    FolderUnwritable,  // Detail: the folder
    FileUnwritable,    // Detail: what the system says, with the path
};

struct Failure {
    Cause Why = Cause::Unknown;
    std::string Detail{};  // code page 1253

    bool operator==(const Failure&) const = default;
};

// Of a file or a folder, or whatever else a call has raised.
[[nodiscard]] Failure failureOf(const RunTimeError& error);
// Of an exchange with that host. `error` is an InternetApi's LastError.
[[nodiscard]] Failure internetFailure(std::int32_t error, std::string_view host);

}  // namespace vell
