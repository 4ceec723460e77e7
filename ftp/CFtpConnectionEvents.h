// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace vell {

// How far a connection is. The numbers are told and logged.
enum class FtpState : std::int32_t {
    ResolvingHost = 0,
    HostResolved = 1,  // connecting
    Connected = 2,     // waiting for the greeting
    LoggingIn = 3,
    LoggedIn = 4,  // never raised
    OpeningData = 5,
    DataReady = 6,
    ListingRequested = 7,
    ListingReceived = 8,
    TransferAccepted = 9,
    TransferFinished = 10,
};

// What a connection tells its owner. It does so while an operation of the owner's waits or works; a handler may let
// events happen, and may call CancelTransfer, BreakeConnection and CloseConnection.
class CFtpConnectionEvents {
  public:
    virtual ~CFtpConnectionEvents() = default;

    virtual void StateChanged(FtpState state) = 0;
    // Bytes of the file that are here, those from before a resumed download included.
    virtual void DownloadProgress(std::int32_t bytes) = 0;
    virtual void UploadProgress(std::int32_t bytes) = 0;
    // A command that was sent (the password masked), a reply, or the address of a data connection. Ends with CR LF.
    virtual void ReplyMessage(std::string_view text) = 0;
};

}  // namespace vell
